// What leaves the process: the printed image of a window, and the end after a
// run-time failure.
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include "ui/geometry.hpp"
#include "ui/printing.hpp"
#include "ui_test_support.hpp"

namespace bm::ui::test {
namespace {

using PrintTest = UiTest;

TEST_F(PrintTest, WithNoPrinterTheWindowGoesToAPdf) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    host.setPrintSettings({true, dir.path(), QDate(2026, 11, 21)});
    program.open("frmprova", OpenModeless);
    FormWindow* w = window("frmprova");
    QWidget* button = w->control("cmdstampa");
    QTest::mouseClick(button, Qt::LeftButton);

    const QString pdf = dir.filePath(QStringLiteral("frmprova 2026-11-21.pdf"));
    ASSERT_EQ(host.lastPrintOutcome().where, PrintOutcome::Where::Pdf);
    EXPECT_EQ(host.lastPrintOutcome().target, pdf);
    QFile file(pdf);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.read(5).startsWith("%PDF-"));
    EXPECT_GT(file.size(), 1000);

    // The image is the window as it stood: the print button had hidden itself.
    const QImage& image = host.lastPrintedImage();
    EXPECT_EQ(image.size(), w->size());
    const QPoint inButton = button->mapTo(w, button->rect().center());
    const QPoint beside = w->clientArea()->mapTo(w, QPoint(Px(3900), Px(5400)));
    EXPECT_EQ(image.pixelColor(inButton), image.pixelColor(beside)) << "the hidden button is not on paper";
    EXPECT_FALSE(button->isHidden()) << "and it is back after printing";

    // A second print on the same day keeps the first.
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(host.lastPrintOutcome().target, dir.filePath(QStringLiteral("frmprova 2026-11-21 (2).pdf")));
    EXPECT_TRUE(QFile::exists(pdf));
}

TEST(PdfNames, WindowNameAndDateMadeSafeForAFile) {
    QTemporaryDir dir;
    EXPECT_EQ(PdfFileFor(dir.path(), QStringLiteral("frmcapacitàbobina"), QDate(2026, 1, 2)),
              dir.filePath(QStringLiteral("frmcapacitàbobina 2026-01-02.pdf")));
    EXPECT_EQ(PdfFileFor(dir.path(), QStringLiteral("a/b c"), QDate(2026, 1, 2)),
              dir.filePath(QStringLiteral("a_b_c 2026-01-02.pdf")));
}

TEST(Fault, TheProcessEndsWithAFailureAfterTheBox) {
    QProcess child;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    child.setProcessEnvironment(env);
    child.start(QStringLiteral(BM_FAULT_HELPER), {});
    ASSERT_TRUE(child.waitForFinished(20000)) << "the helper did not end";
    const QString out = QString::fromUtf8(child.readAllStandardOutput());
    EXPECT_EQ(child.exitStatus(), QProcess::NormalExit) << "ended, not crashed";
    EXPECT_EQ(child.exitCode(), 1) << out.toStdString();
    EXPECT_TRUE(out.contains(QStringLiteral("title=Bancomisuratore"))) << out.toStdString();
    EXPECT_TRUE(out.contains(QString::fromStdString("text=" + FaultBoxText(FaultKind::DivisionByZero))))
        << out.toStdString();
    EXPECT_TRUE(out.contains(QStringLiteral("icon=%1").arg(static_cast<int>(QMessageBox::Critical))));
}

}  // namespace
}  // namespace bm::ui::test
