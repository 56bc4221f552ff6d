// The Qt net's look at a window: a window that shows its record passes, and
// each way a widget can stray from the record is named.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QRadioButton>

#include "forms/headless_host.hpp"
#include "qt_checks.hpp"
#include "shell/workbook.hpp"
#include "ui/qt_host.hpp"

namespace bm::soak {
namespace {

bool Names(const std::vector<std::string>& problems, const std::string& part) {
    for (const std::string& p : problems)
        if (p.find(part) != std::string::npos) return true;
    return false;
}

TEST(SoakWindowCheck, NamesEveryWayAWindowStraysFromItsRecord) {
    const Workbook book;
    ui::QtHost host;
    Program program(book, host, NumberLocale::english());
    host.attach(program);
    host.setMessageAnswerer([](QMessageBox&) { return QMessageBox::Ok; });
    ASSERT_EQ(program.open("frmvolt", OpenModeless), Program::Status::Running);
    ui::FormWindow* w = host.window("frmvolt");
    ASSERT_NE(w, nullptr);
    const FormState& st = *program.state("frmvolt");
    EXPECT_EQ(WindowProblems(*w, st), std::vector<std::string>{});

    // A label whose text and place went astray, an option unchecked behind the model's back.
    const ControlDef* label = nullptr;
    const ControlDef* option = nullptr;
    for (const ControlDef& d : st.def->controls) {
        if (label == nullptr && d.kind == ControlKind::Label && d.visible) label = &d;
        if (option == nullptr && d.kind == ControlKind::Option && st.control(d.key).chosen) option = &d;
    }
    ASSERT_NE(label, nullptr);
    ASSERT_NE(option, nullptr);
    auto* l = qobject_cast<QLabel*>(w->control(label->key));
    l->setText(QStringLiteral("altro"));
    l->move(l->pos() + QPoint(3, 0));
    qobject_cast<QRadioButton*>(w->control(option->key))->setChecked(false);
    w->control(option->key)->hide();
    w->setWindowTitle(QStringLiteral("ALTRO"));
    w->move(w->pos() + QPoint(10, 10));

    const std::vector<std::string> p = WindowProblems(*w, st);
    EXPECT_TRUE(Names(p, label->key.str() + ": shows \"altro\"")) << ::testing::PrintToString(p);
    EXPECT_TRUE(Names(p, label->key.str() + ": at ")) << ::testing::PrintToString(p);
    EXPECT_TRUE(Names(p, option->key.str() + ": chosen in the model, not on the screen"));
    EXPECT_TRUE(Names(p, option->key.str() + ": hidden, the model has it visible"));
    EXPECT_TRUE(Names(p, "title \"ALTRO\""));
    EXPECT_TRUE(Names(p, "frmvolt: window at "));
    EXPECT_EQ(p.size(), 6u) << ::testing::PrintToString(p);

    // The next sync brings the controls back; a window moved outside the
    // logic (as a user drags it) stays where it was put.
    host.formChanged(*program.state("frmvolt"));
    const std::vector<std::string> left = WindowProblems(*w, st);
    ASSERT_EQ(left.size(), 1u) << ::testing::PrintToString(left);
    EXPECT_TRUE(Names(left, "frmvolt: window at "));
}

}  // namespace
}  // namespace bm::soak

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
