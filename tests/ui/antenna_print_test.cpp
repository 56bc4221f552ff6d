// The antenna windows that print: the EH windows put themselves on paper
// without their buttons, and the loop's print ends the program before
// anything reaches the printer.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <cstdio>

#include "ui/printing.hpp"
#include "ui_test_support.hpp"

namespace bm::ui::test {
namespace {

using AntennaPrintTest = UiTest;

// Every pixel of `area` in `image` has the colour `face`.
bool Plain(const QImage& image, const QRect& area, QColor face) {
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.pixelColor(x, y) != face) return false;
    return true;
}

TEST_F(AntennaPrintTest, TheEhPrintoutHoldsNoButton) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    // BM_KEEP_PRINTS=1 leaves the PDFs behind (their folder is printed), for a person to look at the pages.
    if (qEnvironmentVariableIsSet("BM_KEEP_PRINTS")) {
        dir.setAutoRemove(false);
        std::printf("the pages are in %s\n", dir.path().toLocal8Bit().constData());
    }
    host.setPrintSettings({true, dir.path(), QDate(2026, 11, 21)});
    for (const char* form : {"frmEH", "frmEHstar"}) {
        SCOPED_TRACE(form);
        program.open(form, OpenModeless);
        FormWindow* w = window(form);
        ASSERT_NE(w, nullptr);
        QTest::mouseClick(w->control("cmdstampa"), Qt::LeftButton);

        ASSERT_EQ(host.lastPrintOutcome().where, PrintOutcome::Where::Pdf);
        QFile pdf(host.lastPrintOutcome().target);
        ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
        EXPECT_TRUE(pdf.read(5).startsWith("%PDF-"));

        // Where the buttons stand the page shows the bare face of the window,
        // while the same places on screen, after the print, show the buttons.
        const QImage& printed = host.lastPrintedImage();
        ASSERT_EQ(printed.size(), w->size());
        const QImage onScreen = w->grab().toImage();
        for (const char* name : {"cmdcalcola", "cmdesci", "cmdstampa"}) {
            QWidget* button = w->control(name);
            EXPECT_TRUE(button->isVisible()) << name << " is back after printing";
            const QRect area(button->mapTo(w, QPoint(0, 0)), button->size());
            const QColor face = printed.pixelColor(area.left() - 4, area.center().y());
            EXPECT_TRUE(Plain(printed, area, face)) << name << " is on paper";
            EXPECT_FALSE(Plain(onScreen, area, face)) << name << " should show on screen";
        }
        // The rest of the window is on paper: the title of the drawing, say.
        QWidget* caption = w->control("Label7");
        const QRect captionArea(caption->mapTo(w, QPoint(0, 0)), caption->size());
        EXPECT_FALSE(Plain(printed, captionArea, printed.pixelColor(captionArea.topLeft())));
        program.close(form);
    }
}

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
