// A definition drawn as a window: where each control stands, what it looks
// like, what lies under what, the tab order and the names screen readers hear.
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QtTest/QTest>
#include <algorithm>
#include <map>
#include <set>

#include "ui/accessibility.hpp"
#include "ui/controls.hpp"
#include "ui/geometry.hpp"
#include "ui/pictures.hpp"
#include "ui_test_support.hpp"

namespace bm::ui::test {
namespace {

class FormWindowTest : public UiTest {
protected:
    void SetUp() override {
        ASSERT_EQ(program.open("frmprova", OpenModeless), Program::Status::Running);
        w = window("frmprova");
        ASSERT_NE(w, nullptr);
    }
    QImage shot() { return w->grab().toImage(); }
    // A point of the client area as it lies in the grabbed image.
    QColor pixel(const QImage& image, int xTwips, int yTwips) {
        const QPoint p = w->clientArea()->mapTo(w, QPoint(Px(xTwips), Px(yTwips)));
        return image.pixelColor(p);
    }
    FormWindow* w = nullptr;
};

TEST_F(FormWindowTest, PlacesEverythingAtFifteenTwipsAPixel) {
    // The definition's size is the outer one; the client area is what the frame leaves.
    EXPECT_EQ(w->size(), QSize(7200 / 15 - kFrameAcrossPx, 6000 / 15 - kFrameDownPx));
    EXPECT_EQ(w->minimumSize(), w->maximumSize()) << "the window has a fixed size";
    EXPECT_EQ(w->pos(), QPoint(100, 60));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("PROVA DI FINESTRA"));
    EXPECT_EQ(w->control("txtvalore")->geometry(), QRect(104, 132, 120, 24));
    // Inside a frame a control's place counts from the frame's corner.
    QWidget* third = w->control("Option1(2)");
    EXPECT_EQ(third->parentWidget(), w->control("Frame2"));
    EXPECT_EQ(third->geometry(), QRect(16, 24, 168, 20));
}

TEST_F(FormWindowTest, EveryKindHasItsWidget) {
    EXPECT_NE(qobject_cast<QLineEdit*>(w->control("txtvalore")), nullptr);
    EXPECT_NE(qobject_cast<QLabel*>(w->control("lblris")), nullptr);
    EXPECT_NE(qobject_cast<QPushButton*>(w->control("cmdcalcola")), nullptr);
    EXPECT_NE(qobject_cast<QRadioButton*>(w->control("Option1(0)")), nullptr);
    EXPECT_NE(qobject_cast<QCheckBox*>(w->control("chkopzione")), nullptr);
    EXPECT_NE(qobject_cast<QGroupBox*>(w->control("Frame1")), nullptr);
    EXPECT_NE(dynamic_cast<PictureView*>(w->control("Image1")), nullptr);
    EXPECT_EQ(w->control("Line1"), nullptr) << "lines are painted, not widgets";
    EXPECT_EQ(w->control("Shape1"), nullptr);
    EXPECT_NE(w->timer(ControlKey::Parse("Timer1")), nullptr);

    auto* list = qobject_cast<QComboBox*>(w->control("cbolista"));
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->count(), 2);
    EXPECT_EQ(list->itemText(1), QStringLiteral("DUE = 2"));
    EXPECT_EQ(list->currentText(), QStringLiteral("SCEGLI  =  UNA RIGA")) << "the box shows its own text, not a row";

    auto* exit = qobject_cast<QPushButton*>(w->control("cmdesci"));
    ASSERT_NE(exit, nullptr);
    EXPECT_FALSE(exit->icon().isNull()) << "a button with a picture shows it";
    EXPECT_EQ(exit->accessibleName(), QStringLiteral("esce"));
}

TEST_F(FormWindowTest, LabelsCarryTheirLook) {
    auto* result = widgetAs<QLabel>("frmprova", "lblris");
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(result->font().pointSize(), 12);
    EXPECT_TRUE(result->font().bold());
    EXPECT_EQ(result->alignment(), Qt::AlignHCenter | Qt::AlignTop);
    EXPECT_EQ(result->frameShadow(), QFrame::Sunken);
    EXPECT_EQ(result->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    EXPECT_TRUE(result->textInteractionFlags() & Qt::TextSelectableByMouse) << "results can be read and copied";
    EXPECT_TRUE(result->wordWrap());

    auto* html = widgetAs<QLabel>("frmprova", "lblhtml");
    EXPECT_EQ(html->textFormat(), Qt::PlainText) << "captions are shown exactly as they stand";
    EXPECT_FALSE(html->wordWrap());
    EXPECT_EQ(widgetAs<QLineEdit>("frmprova", "txtvalore")->toolTip(), QStringLiteral("immissione dato"));
}

TEST_F(FormWindowTest, SchematicLiesUnderTheControls) {
    const QImage image = shot();
    // Line1 runs across at y = 1800 twips, 3 pixels wide, in red.
    EXPECT_EQ(pixel(image, 3300, 1800), QColor(255, 0, 0)) << "the line where nothing covers it";
    EXPECT_EQ(pixel(image, 5700, 3900), QColor(0, 0, 255)) << "the middle of the filled circle";
    // A text box moved over the circle hides it.
    program.state("frmprova")->control(ControlKey::Parse("txtmaiuscolo")).rect = {5100, 3780, 1200, 360};
    w->sync(*program.state("frmprova"));
    const QImage covered = shot();
    EXPECT_NE(pixel(covered, 5700, 3900), QColor(0, 0, 255)) << "a text box stands over the schematic";
}

TEST_F(FormWindowTest, TabOrderIsTheDefinitions) {
    std::vector<const ControlDef*> expected;
    for (const ControlDef& d : w->definition().controls)
        if (d.takesFocus()) expected.push_back(&d);
    std::sort(expected.begin(), expected.end(), [](auto* a, auto* b) { return a->tabIndex < b->tabIndex; });

    std::map<QWidget*, std::string> names;
    for (const ControlDef& d : w->definition().controls)
        if (QWidget* c = w->control(d.key)) names[c] = d.key.str();
    std::vector<std::string> chain;
    QWidget* first = w->control(expected.front()->key);
    for (QWidget* c = first; chain.size() < expected.size();) {
        chain.push_back(names[c]);
        do c = c->nextInFocusChain();
        while (names.count(c) == 0 || c->focusPolicy() == Qt::NoFocus);
        if (c == first) break;
    }
    std::vector<std::string> want;
    for (const ControlDef* d : expected) want.push_back(d->key.str());
    EXPECT_EQ(chain, want);
    EXPECT_EQ(w->control("lblris")->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(w->control("Image1")->focusPolicy(), Qt::NoFocus);
}

TEST_F(FormWindowTest, TextBoxesAreNamedAfterTheirLabels) {
    EXPECT_EQ(w->control("txtvalore")->accessibleName(), QStringLiteral("VALORE"));
    EXPECT_EQ(w->control("txtvalore")->accessibleDescription(), QStringLiteral("immissione dato"));
    EXPECT_EQ(w->control("txtmaiuscolo")->accessibleName(), QStringLiteral("In maiuscolo")) << "the label above";
}

TEST_F(FormWindowTest, ControlsFollowTheStateTheLogicLeaves) {
    QTest::mouseClick(w->control("cmdsposta"), Qt::LeftButton);
    EXPECT_EQ(w->control("lblris")->geometry().topLeft(), QPoint(80, 340));
    EXPECT_TRUE(w->control("lblcaption")->isHidden());
    EXPECT_EQ(w->control("lblris")->palette().color(QPalette::WindowText), QColor(0, 0, 255));
    EXPECT_EQ(w->windowTitle(), QStringLiteral("PROVA SPOSTATA"));
}

TEST_F(FormWindowTest, OptionGroupsGoByNameAndFrame) {
    auto* first = widgetAs<QRadioButton>("frmprova", "Option1(0)");
    auto* second = widgetAs<QRadioButton>("frmprova", "Option1(1)");
    auto* third = widgetAs<QRadioButton>("frmprova", "Option1(2)");
    EXPECT_TRUE(first->isChecked()) << "the first control in tab order is chosen on opening";
    QTest::mouseClick(third, Qt::LeftButton);
    EXPECT_TRUE(third->isChecked());
    EXPECT_TRUE(first->isChecked()) << "the other frame is another group";
    QTest::mouseClick(second, Qt::LeftButton);
    EXPECT_TRUE(second->isChecked());
    EXPECT_FALSE(first->isChecked());
    // A click on the chosen element leaves it chosen, as the model says.
    QTest::mouseClick(second, Qt::LeftButton);
    EXPECT_TRUE(second->isChecked());
    for (const char* id : {"Option1(0)", "Option1(1)", "Option1(2)", "Option1(3)"})
        EXPECT_EQ(widgetAs<QRadioButton>("frmprova", id)->isChecked(), state("frmprova", id).chosen) << id;
}

TEST_F(FormWindowTest, CheckBoxesListsAndPicturesReportToTheModel) {
    QTest::mouseClick(w->control("chkopzione"), Qt::LeftButton);
    EXPECT_TRUE(state("frmprova", "chkopzione").chosen);
    EXPECT_EQ(widgetAs<QLabel>("frmprova", "lblris")->text(), QStringLiteral("scelta"));

    auto* list = widgetAs<QComboBox>("frmprova", "cbolista");
    list->activated(1);  // as when the user picks the second row
    EXPECT_EQ(state("frmprova", "cbolista").text, "DUE = 2");
    EXPECT_EQ(list->currentText(), QStringLiteral("DUE = 2"));

    QTest::mouseClick(w->control("Image1"), Qt::LeftButton);
    EXPECT_EQ(state("frmprova", "lblris").text, "immagine");
}

TEST(Pictures, KnownNamesAreDrawnAndOthersKeepTheirPlace) {
    for (const char* name : {"main", "exit", "about"}) {
        EXPECT_TRUE(IsKnownPicture(name)) << name;
        const QImage image = RenderPicture(name, QSize(120, 90)).toImage();
        ASSERT_EQ(image.size(), QSize(120, 90)) << name;
        std::set<QRgb> colours;
        for (int y = 0; y < image.height(); y += 7)
            for (int x = 0; x < image.width(); x += 7) colours.insert(image.pixel(x, y));
        EXPECT_GT(colours.size(), 4u) << name << " is drawn, not a flat fill";
    }
    EXPECT_FALSE(IsKnownPicture("bobina"));
    EXPECT_FALSE(RenderPicture("bobina", QSize(40, 40)).isNull()) << "an unknown name draws the placeholder";
    EXPECT_TRUE(RenderPicture("main", QSize(0, 10)).isNull());
}

// The caption finder reads the definition only.
TEST(CaptionLabels, NearestLabelLeftOrAboveInTheSameFrame) {
    CalculatorForm f("frmx", "X", {0, 0, 6000, 4000});
    f.label("lblfar", {0, 600, 600, 300}, "LONTANO");
    f.label("lblnear", {1200, 600, 1200, 300}, "VICINO :");
    f.textBox("txta", {2520, 560, 1200, 360});
    f.label("lblover", {4000, 200, 1200, 300}, "SOPRA");
    f.textBox("txtb", {4000, 560, 1200, 360});
    f.frame("Frame1", {0, 1200, 6000, 2000});
    f.label("lblinside", {120, 240, 1200, 300}, "DENTRO").in("Frame1");
    f.textBox("txtc", {1440, 200, 1200, 360}).in("Frame1");
    f.textBox("txtalone", {4000, 3400, 1200, 360});

    EXPECT_EQ(CaptionLabelFor(f, ControlKey::Parse("txta")), ControlKey::Parse("lblnear"));
    EXPECT_EQ(CaptionLabelFor(f, ControlKey::Parse("txtb")), ControlKey::Parse("lblover"));
    EXPECT_EQ(CaptionLabelFor(f, ControlKey::Parse("txtc")), ControlKey::Parse("lblinside"));
    EXPECT_EQ(CaptionLabelFor(f, ControlKey::Parse("txtalone")), std::nullopt);
    EXPECT_EQ(AbsoluteRect(f, *f.find(ControlKey::Parse("txtc"))), (Rect{1440, 1400, 1200, 360}));
    EXPECT_EQ(SpokenCaption("  VOLT  :  "), QStringLiteral("VOLT"));
    EXPECT_EQ(SpokenCaption("C&ircuiti"), QStringLiteral("Circuiti"));
}

}  // namespace
}  // namespace bm::ui::test
