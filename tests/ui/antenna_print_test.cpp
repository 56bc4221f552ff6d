// The loop's print ends the program before anything reaches the printer.
#include <QDir>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include "ui_test_support.hpp"

namespace bm::ui::test {
namespace {

using AntennaPrintTest = UiTest;

TEST_F(AntennaPrintTest, TheLoopPrintEndsTheProgramWithNothingPrinted) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    host.setPrintSettings({true, dir.path(), QDate(2026, 11, 21)});
    program.open("frmloop", OpenModeless);
    FormWindow* w = window("frmloop");
    ASSERT_NE(w, nullptr);
    answerNextBox(QMessageBox::Ok);
    QTest::mouseClick(w->control("cmdstampa"), Qt::LeftButton);

    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, FaultBoxText(FaultKind::ObjectRequired));
    EXPECT_EQ(boxes[0].icon, QMessageBox::Critical);
    EXPECT_EQ(exits, std::vector<int>{1});
    EXPECT_TRUE(host.lastPrintedImage().isNull());
    EXPECT_TRUE(QDir(dir.path()).isEmpty());
    // The buttons went before the failure; the capacitor note was left alone.
    for (const char* name : {"cmdcalcola", "cmdinfo", "cmdExit", "cmdstampa"})
        EXPECT_FALSE(state("frmloop", name).visible) << name;
    EXPECT_TRUE(state("frmloop", "cdmcondensatore").visible);
}

}  // namespace
}  // namespace bm::ui::test
