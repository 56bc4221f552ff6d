// The windows driven through their widgets: what the user types and clicks
// reaches the model once, and the widgets show what the model holds after.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QWindow>
#include <QtTest/QTest>
#include <gtest/gtest-spi.h>

#include "ui/message_box.hpp"
#include "ui_test_support.hpp"

namespace bm::ui::test {
namespace {

void Type(QWidget* box, const char* text) {
    ASSERT_NE(box, nullptr);
    QTest::keyClicks(box, QString::fromUtf8(text));
}

void Click(QWidget* w) {
    ASSERT_NE(w, nullptr);
    QTest::mouseClick(w, Qt::LeftButton);
}

QString LabelText(QWidget* w) {
    auto* label = qobject_cast<QLabel*>(w);
    return label == nullptr ? QStringLiteral("<no label>") : label->text();
}

// Every text box and label of a shown form reads as its state does.
void ExpectWidgetsMirrorTheModel(const FormWindow& window, const FormState& st) {
    for (const ControlDef& d : st.def->controls) {
        QWidget* w = window.control(d.key);
        const QString wanted = QString::fromStdString(st.control(d.key).text);
        if (auto* box = qobject_cast<QLineEdit*>(w)) {
            EXPECT_EQ(box->text(), wanted) << d.key.str();
        }
        if (auto* label = qobject_cast<QLabel*>(w)) {
            EXPECT_EQ(label->text(), wanted) << d.key.str();
        }
        if (w != nullptr) {
            EXPECT_EQ(!w->isHidden(), st.control(d.key).visible) << d.key.str();
        }
    }
}

using TypingTest = UiTest;

TEST_F(TypingTest, EachKeystrokeIsOneChange) {
    program.open("frmprova", OpenModeless);
    Type(widget("frmprova", "txtvalore"), "12.5");
    EXPECT_EQ(state("frmprova", "txtvalore").text, "12.5");
    EXPECT_EQ(prova().changes, 4);
    EXPECT_EQ(LabelText(widget("frmprova", "lblris")), QStringLiteral("12.5!"));
}

TEST_F(TypingTest, ATextTheHandlerSetsIsNotReportedBack) {
    program.open("frmprova", OpenModeless);
    Type(widget("frmprova", "txtmaiuscolo"), "ab");
    // Per key: the user's Change, then the one the handler's own rewrite fires.
    EXPECT_EQ(prova().changes, 4);
    EXPECT_EQ(widgetAs<QLineEdit>("frmprova", "txtmaiuscolo")->text(), QStringLiteral("AB"));
    EXPECT_EQ(state("frmprova", "txtmaiuscolo").text, "AB");
}

TEST_F(TypingTest, FrmvoltThroughItsWidgets) {
    const CalculatorForm* def = library.find("frmvolt");
    if (def == nullptr || def->find(ControlKey::Parse("txtinput")) == nullptr) GTEST_SKIP() << "frmvolt not built yet";
    whileModal([&] { ChooseMenuItem(program, "mnurms"); },
               [&] {
                   FormWindow* w = window("frmvolt");
                   ASSERT_NE(w, nullptr);
                   EXPECT_EQ(w->windowModality(), Qt::ApplicationModal);
                   EXPECT_TRUE(widgetAs<QRadioButton>("frmvolt", "Option1(0)")->isChecked());
                   EXPECT_TRUE(widgetAs<QRadioButton>("frmvolt", "Option2(0)")->isChecked());
                   Type(w->control("txtinput"), "100");
                   Click(w->control("cmdcalcola"));
                   EXPECT_EQ(LabelText(w->control("lblout1")), QStringLiteral("VOLT di picco : 141.40"));
                   EXPECT_EQ(LabelText(w->control("lblout2")), QStringLiteral("VOLT picco picco : 282.80"));
                   EXPECT_EQ(LabelText(w->control("lblout3")), QStringLiteral("VOLT VALORE MEDIO : 90.07"));
                   ExpectWidgetsMirrorTheModel(*w, *program.state("frmvolt"));
                   // Typing hides the results again.
                   Type(w->control("txtinput"), "1");
                   EXPECT_TRUE(w->control("lblout1")->isHidden());
                   Click(w->control("cmdesci"));
               });
    EXPECT_EQ(window("frmvolt"), nullptr);
    EXPECT_FALSE(program.state("frmvolt")->shown);
}

TEST_F(TypingTest, FrmleggediohmThroughItsWidgets) {
    const CalculatorForm* def = library.find("frmleggediohm");
    if (def == nullptr || def->find(ControlKey::Parse("txtinput1")) == nullptr)
        GTEST_SKIP() << "frmleggediohm not built yet";
    whileModal([&] { ChooseMenuItem(program, "mnuohm"); },
               [&] {
                   FormWindow* w = window("frmleggediohm");
                   ASSERT_NE(w, nullptr);
                   // An empty input: the warning, and the focus back on the first input.
                   answerNextBox(QMessageBox::Ok);
                   Click(w->control("cmdcalcola"));
                   ASSERT_EQ(boxes.size(), 1u);
                   EXPECT_EQ(boxes[0].text, "MANCANO DATI");
                   EXPECT_EQ(boxes[0].title, "MESSAGGIO DI ERRORE");
                   EXPECT_EQ(boxes[0].icon, QMessageBox::Warning);
                   EXPECT_EQ(w->focusWidget(), w->control("txtinput1"));

                   Click(w->control("Option1(5)"));
                   EXPECT_EQ(LabelText(w->control("lblinput(0)")), QStringLiteral("OHM :"));
                   Type(w->control("txtinput1"), "50");
                   Type(w->control("txtinput2"), "2");
                   Click(w->control("cmdcalcola"));
                   EXPECT_EQ(LabelText(w->control("lblinput(4)")), QStringLiteral("10."));
                   EXPECT_EQ(LabelText(w->control("lblinput(5)")), QStringLiteral("0.2"));
                   ExpectWidgetsMirrorTheModel(*w, *program.state("frmleggediohm"));
                   Click(w->control("cdmesci"));
               });
    EXPECT_EQ(window("frmleggediohm"), nullptr);
}

using MessageBoxTest = UiTest;

TEST_F(MessageBoxTest, StylesGiveTheirIconsButtonsAndAnswers) {
    const BoxStyle warning = DecodeBoxStyle(48);
    EXPECT_EQ(warning.icon, QMessageBox::Warning);
    EXPECT_EQ(warning.buttons, QMessageBox::Ok);
    EXPECT_EQ(AnswerCode(QMessageBox::Ok, warning), 1);
    EXPECT_EQ(AnswerCode(QMessageBox::NoButton, warning), 1) << "closing an OK box is OK";

    const BoxStyle question = DecodeBoxStyle(36);
    EXPECT_EQ(question.icon, QMessageBox::Question);
    EXPECT_EQ(question.buttons, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(AnswerCode(QMessageBox::Yes, question), 6);
    EXPECT_EQ(AnswerCode(QMessageBox::No, question), 7);
    EXPECT_EQ(AnswerCode(QMessageBox::NoButton, question), 7);

    const BoxStyle critical = DecodeBoxStyle(16);
    EXPECT_EQ(critical.icon, QMessageBox::Critical);
    EXPECT_EQ(AnswerCode(QMessageBox::Ok, critical), 1);

    const auto box = BuildMessageBox("MANCANO DATI  <b>", 48, "  ATTENZIONE", nullptr);
    EXPECT_EQ(box->text(), QStringLiteral("MANCANO DATI  <b>"));
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->windowTitle(), QStringLiteral("  ATTENZIONE"));
    EXPECT_EQ(box->windowModality(), Qt::ApplicationModal);
}

TEST_F(MessageBoxTest, TheLogicGetsTheButtonPressed) {
    program.open("frmprova", OpenModeless);
    answerNextBox(QMessageBox::Yes);
    Click(widget("frmprova", "cmddomanda"));
    EXPECT_EQ(state("frmprova", "lblris").text, "6");
    answerNextBox(QMessageBox::No);
    Click(widget("frmprova", "cmddomanda"));
    EXPECT_EQ(state("frmprova", "lblris").text, "7");
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes[0].text, "SEI SICURO ?");
    EXPECT_EQ(boxes[0].title, "AVVISO");
    EXPECT_EQ(boxes[0].icon, QMessageBox::Question);
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Yes | QMessageBox::No);
}

TEST_F(MessageBoxTest, AWarningLeavesTheFocusWhereTheLogicPutsIt) {
    program.open("frmprova", OpenModeless);
    answerNextBox(QMessageBox::Ok);
    Click(widget("frmprova", "cmdcalcola"));
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].icon, QMessageBox::Warning);
    EXPECT_EQ(boxes[0].buttons, QMessageBox::Ok);
    EXPECT_EQ(window("frmprova")->focusWidget(), widget("frmprova", "txtvalore"));
}

TEST_F(MessageBoxTest, AnUnexpectedBoxFailsTheTest) {
    program.open("frmprova", OpenModeless);
    EXPECT_NONFATAL_FAILURE(Click(widget("frmprova", "cmdcalcola")), "unexpected message box: \"MANCANO DATI\"");
}

using WindowRulesTest = UiTest;

// A press on the main window's menu bar, as the window system delivers it:
// through the window, where a modal window can refuse it.
bool MenuOpensOnClick(FormWindow& main) {
    QMenuBar* bar = main.menuBar();
    if (bar == nullptr || bar->actions().isEmpty()) return false;
    const QPoint at = bar->mapTo(&main, bar->actionGeometry(bar->actions().first()).center());
    QTest::mouseClick(main.windowHandle(), Qt::LeftButton, {}, at);
    QApplication::processEvents();
    QWidget* popup = QApplication::activePopupWidget();
    if (popup != nullptr) popup->close();
    return popup != nullptr;
}

TEST_F(WindowRulesTest, AModalFormBlocksTheMenuAndAModelessOneDoesNot) {
    ASSERT_EQ(StartProgram(program), Program::Status::Running);
    FormWindow* main = window(kMainForm);
    ASSERT_NE(main, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(main));
    EXPECT_TRUE(MenuOpensOnClick(*main)) << "nothing open: the menu answers";

    program.open("frmpiccola", OpenModeless);
    EXPECT_EQ(window("frmpiccola")->windowModality(), Qt::NonModal);
    EXPECT_TRUE(MenuOpensOnClick(*main)) << "a modeless form leaves the menu usable";
    window("frmpiccola")->close();
    FlushDeletions();

    whileModal([&] { program.open("frmpiccola", OpenModal); },
               [&] {
                   FormWindow* modal = window("frmpiccola");
                   ASSERT_NE(modal, nullptr);
                   EXPECT_EQ(modal->windowModality(), Qt::ApplicationModal);
                   EXPECT_FALSE(MenuOpensOnClick(*main)) << "a modal form blocks the menu";
                   Click(modal->control("cmdesci"));
               });
    EXPECT_EQ(window("frmpiccola"), nullptr);
    EXPECT_TRUE(MenuOpensOnClick(*main)) << "and after it closes the menu answers again";
}

TEST_F(WindowRulesTest, AFormOpenedAgainComesForwardUnchanged) {
    StartProgram(program);
    program.open("frmpiccola", OpenModeless);
    FormWindow* first = window("frmpiccola");
    Type(first->control("txtnota"), "nota");
    window(kMainForm)->activateWindow();
    program.open("frmpiccola", OpenModeless);
    EXPECT_EQ(window("frmpiccola"), first) << "one window per form";
    EXPECT_EQ(widgetAs<QLineEdit>("frmpiccola", "txtnota")->text(), QStringLiteral("nota"));
    EXPECT_TRUE(QTest::qWaitForWindowActive(first));
}

TEST_F(WindowRulesTest, TheCloseBoxUnloadsAndReopeningShowsTheDefinition) {
    program.open("frmprova", OpenModeless);
    Type(widget("frmprova", "txtvalore"), "7");
    Click(widget("frmprova", "cmdcalcola"));
    Click(widget("frmprova", "cmdsposta"));
    ASSERT_EQ(state("frmprova", "lblris").text, "OK 7");
    QPointer<FormWindow> old = window("frmprova");
    old->close();  // the close box
    EXPECT_FALSE(program.state("frmprova")->loaded);
    FlushDeletions();
    EXPECT_TRUE(old.isNull()) << "the closed window is gone";

    program.open("frmprova", OpenModeless);
    FormWindow* again = window("frmprova");
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(widgetAs<QLineEdit>("frmprova", "txtvalore")->text(), QString());
    EXPECT_EQ(LabelText(again->control("lblris")), QString());
    EXPECT_FALSE(again->control("lblcaption")->isHidden());
    EXPECT_EQ(again->windowTitle(), QStringLiteral("PROVA DI FINESTRA"));
    EXPECT_EQ(again->control("lblris")->geometry().topLeft(), QPoint(16, 184));
    EXPECT_EQ(prova().changes, 1) << "form-level values outlive the window";
}

TEST_F(WindowRulesTest, TimersRunWhileTheirStateSaysSo) {
    program.open("frmprova", OpenModeless);
    QTimer* timer = window("frmprova")->timer(ControlKey::Parse("Timer1"));
    ASSERT_NE(timer, nullptr);
    EXPECT_FALSE(timer->isActive()) << "the load logic disabled it";
    Click(widget("frmprova", "cmdsposta"));  // enables it
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 40);
    // The handler disables its timer at the third tick.
    EXPECT_TRUE(QTest::qWaitFor([&] { return !timer->isActive(); }, 3000));
    EXPECT_EQ(prova().ticks, 3);
}

TEST_F(WindowRulesTest, TheMainWindowBlinksUntilItsTitleIsClicked) {
    StartProgram(program);
    FormWindow* main = window(kMainForm);
    QTimer* timer = main->timer(ControlKey::Parse("Timer1"));
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 1000);
    const QColor before = main->control("lbltitolo")->palette().color(QPalette::WindowText);
    ASSERT_TRUE(QTest::qWaitFor([&] { return main->control("lbltitolo")->palette().color(QPalette::WindowText) != before; },
                                2500));
    Click(main->control("lbltitolo"));
    EXPECT_FALSE(timer->isActive());
}

TEST_F(WindowRulesTest, TheMainCloseBoxEndsWithoutAsking) {
    StartProgram(program);
    window(kMainForm)->close();
    EXPECT_EQ(exits, std::vector<int>{0});
    EXPECT_TRUE(boxes.empty());
}

TEST_F(WindowRulesTest, TheExitButtonAsksFirst) {
    StartProgram(program);
    QWidget* exit = widget(kMainForm, "cdmexit");
    answerNextBox(QMessageBox::No);
    Click(exit);
    EXPECT_TRUE(exits.empty());
    answerNextBox(QMessageBox::Yes);
    Click(exit);
    EXPECT_EQ(exits, std::vector<int>{0});
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes[1].text, "SEI SICURO ?");
    EXPECT_EQ(boxes[1].title, "AVVISO");
    // Ended: the windows no longer reach the program.
    Click(exit);
    EXPECT_EQ(boxes.size(), 2u);
}

TEST_F(WindowRulesTest, AFaultShowsTheRunTimeBoxAndEndsWithAFailure) {
    program.open("frmprova", OpenModeless);
    answerNextBox(QMessageBox::Ok);
    Click(widget("frmprova", "cmdguasto"));
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, FaultBoxText(FaultKind::DivisionByZero));
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(exits, std::vector<int>{1});
}

}  // namespace
}  // namespace bm::ui::test
