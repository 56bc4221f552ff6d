// What the desktop adds around the windows: copying the results, and telling
// the user where a print went.
#include <QApplication>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include "ui/style.hpp"
#include "ui_test_support.hpp"

namespace bm::ui::test {
namespace {

using DesktopTest = UiTest;

TEST_F(DesktopTest, CtrlCCopiesTitleInputsAndResultsInReadingOrder) {
    program.open("frmleggediohm", OpenModeless);
    program.click("frmleggediohm", ControlKey::Parse("Option1(1)"));
    program.edit("frmleggediohm", ControlKey::Parse("txtinput1"), "2.001");
    program.edit("frmleggediohm", ControlKey::Parse("txtinput2"), "2");
    program.click("frmleggediohm", ControlKey::Parse("cmdcalcola"));
    QGuiApplication::clipboard()->clear();

    // The focus is in a text box with nothing selected: Ctrl+C copies the window.
    auto* box = widgetAs<QLineEdit>("frmleggediohm", "txtinput2");
    ASSERT_NE(box, nullptr);
    box->setFocus();
    box->deselect();
    QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
    const QString copied = QGuiApplication::clipboard()->text();
    const QStringList lines = copied.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_GE(lines.size(), 5) << copied.toStdString();
    EXPECT_EQ(lines[0], QStringLiteral("POTENZA - TENSIONE - CORRENTE - RESISTENZA"));
    EXPECT_TRUE(lines.contains(QStringLiteral("VOLT: 2.001"))) << copied.toStdString();
    EXPECT_TRUE(lines.contains(QStringLiteral("OHM: 2"))) << copied.toStdString();
    // A result and the label beside it make one line, after the inputs.
    EXPECT_TRUE(lines.contains(QStringLiteral("AMPER : 1.001"))) << copied.toStdString();
    EXPECT_LT(lines.indexOf(QStringLiteral("VOLT: 2.001")), lines.indexOf(QStringLiteral("AMPER : 1.001")));

    // A selection of the box's own is what Ctrl+C copies there.
    box->selectAll();
    QTest::keyClick(box, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("2"));

    // The same from the window's context menu action.
    QAction* action = window("frmleggediohm")->findChild<QAction*>(QStringLiteral("copyResults"));
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->text(), QStringLiteral("Copia i risultati"));
    action->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), copied);
}

TEST_F(DesktopTest, APrintToPdfTellsTheUserWhereTheFileWent) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    host.setPrintSettings({true, dir.path(), QDate(2026, 11, 21)});
    program.open("frmprova", OpenModeless);
    FormWindow* w = window("frmprova");
    QTest::mouseClick(w->control("cmdstampa"), Qt::LeftButton);

    ASSERT_NE(w->note(), nullptr);
    EXPECT_TRUE(w->note()->isVisible());
    EXPECT_TRUE(w->note()->text().contains(dir.filePath(QStringLiteral("frmprova 2026-11-21.pdf"))));
    EXPECT_TRUE(boxes.empty()) << "no message box of the logic's";

    // The note is not on the next page.
    QTest::mouseClick(w->control("cmdstampa"), Qt::LeftButton);
    const QImage& image = host.lastPrintedImage();
    const QPoint inNote = w->note()->geometry().center();
    const QPoint farAway(inNote.x(), w->note()->geometry().top() - 4);
    EXPECT_EQ(image.pixelColor(inNote), image.pixelColor(farAway));
}

TEST_F(DesktopTest, ADarkDesktopThemeLeavesTheWindowsLight) {
    QPalette dark(QColor(230, 230, 230), QColor(40, 40, 40));
    dark.setColor(QPalette::Base, QColor(25, 25, 25));
    dark.setColor(QPalette::Text, QColor(240, 240, 240));
    QApplication::setPalette(dark);
    ApplyWorkbookStyle(*qApp);

    program.open("frmleggediohm", OpenModeless);
    const QPalette box = widget("frmleggediohm", "txtinput1")->palette();
    const QPalette label = widget("frmleggediohm", "Label4")->palette();
    for (QPalette::ColorGroup g : {QPalette::Active, QPalette::Inactive}) {
        EXPECT_GT(qGray(box.color(g, QPalette::Base).rgb()) - qGray(box.color(g, QPalette::Text).rgb()), 150);
        EXPECT_GT(qGray(label.color(g, QPalette::Window).rgb()) - qGray(label.color(g, QPalette::WindowText).rgb()), 150);
    }
}

}  // namespace
}  // namespace bm::ui::test
