// The main window's menu bar is the menu tree, item for item.
#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include "shell/form_registry.hpp"
#include "ui/main_menu.hpp"
#include "ui_test_support.hpp"

namespace bm::ui::test {
namespace {

struct Row {
    int level;
    std::string name;
    std::string caption;
    bool enabled;
    friend bool operator==(const Row&, const Row&) = default;
    friend std::ostream& operator<<(std::ostream& os, const Row& r) {
        return os << r.level << " " << r.name << " \"" << r.caption << "\"" << (r.enabled ? "" : " disabled");
    }
};

void Walk(const QList<QAction*>& actions, int level, std::vector<Row>& rows) {
    for (QAction* a : actions) {
        rows.push_back({level, a->objectName().toStdString(), a->text().toStdString(), a->isEnabled()});
        if (QMenu* sub = a->menu()) Walk(sub->actions(), level + 1, rows);
    }
}

using MenuTest = UiTest;

// Item for item, and every item enabled: each one has its window.
TEST_F(MenuTest, TheMenuBarIsTheMenuTree) {
    ASSERT_EQ(StartProgram(program), Program::Status::Running);
    QMenuBar* bar = window(kMainForm)->menuBar();
    ASSERT_NE(bar, nullptr);
    std::vector<Row> shown;
    Walk(bar->actions(), 1, shown);
    std::vector<Row> wanted;
    for (const MenuItem& m : FormRegistry::items())
        wanted.push_back({m.level, m.name, m.caption, true});
    EXPECT_EQ(shown, wanted);
}

// The menu knows its forms by name: the main window with its whole menu bar
// is up before any calculator is built.
TEST_F(MenuTest, StartingBuildsNoCalculator) {
    const Workbook& book = library.workbook();
    ASSERT_EQ(StartProgram(program), Program::Status::Running);
    QMenuBar* bar = window(kMainForm)->menuBar();
    ASSERT_NE(bar, nullptr);
    EXPECT_FALSE(bar->findChildren<QAction*>().isEmpty());
    EXPECT_EQ(book.definitionsBuilt(), 1U);
    EXPECT_TRUE(book.isDefinitionBuilt(kMainForm));
}

TEST(MainMenu, NestingAccessKeysAndDisabledItems) {
    const std::vector<MenuItem> items = {
        {1, "mnua", "&Antenne", "", Modality::Modal},
        {2, "mnub", "Dipoli", "", Modality::Modal},
        {3, "mnuc", "Dipoli 1/2 lambda", "frmfatto", Modality::Modal},
        {3, "mnud", "Dipolo multigamma", "frmdafare", Modality::Modeless},
        {2, "mnue", "Elicoidale", "frmfatto", Modality::Modal},
        {1, "mnuf", "Leggimi", "frmfatto", Modality::Modal},
    };
    QMenuBar bar;
    std::vector<std::string> chosen;
    BuildMainMenu(
        bar, items, [](std::string_view form) { return form == "frmfatto"; },
        [&](const std::string& item) { chosen.push_back(item); });
    std::vector<Row> rows;
    Walk(bar.actions(), 1, rows);
    const std::vector<Row> wanted = {
        {1, "mnua", "&Antenne", true},           {2, "mnub", "Dipoli", true},
        {3, "mnuc", "Dipoli 1/2 lambda", true},  {3, "mnud", "Dipolo multigamma", false},
        {2, "mnue", "Elicoidale", true},         {1, "mnuf", "Leggimi", true},
    };
    EXPECT_EQ(rows, wanted);
    EXPECT_EQ(QKeySequence::mnemonic(bar.actions().first()->text()), QKeySequence(Qt::ALT | Qt::Key_A));
    EXPECT_EQ(bar.actions().last()->menu(), nullptr) << "an item with a form on the bar itself is an action";

    bar.findChild<QAction*>(QStringLiteral("mnue"))->trigger();
    bar.findChild<QAction*>(QStringLiteral("mnuf"))->trigger();
    EXPECT_EQ(chosen, (std::vector<std::string>{"mnue", "mnuf"}));
}

TEST_F(MenuTest, ChoosingAnItemOpensItsFormAsTheTreeSays) {
    StartProgram(program);
    const MenuItem* item = FormRegistry::find("mnuinfo");
    ASSERT_NE(item, nullptr);
    auto* action = window(kMainForm)->menuBar()->findChild<QAction*>(QStringLiteral("mnuinfo"));
    ASSERT_NE(action, nullptr);
    whileModal([&] { action->trigger(); },
               [&] {
                   FormWindow* about = window(item->form);
                   ASSERT_NE(about, nullptr);
                   EXPECT_TRUE(about->isVisible());
                   EXPECT_EQ(about->windowModality(), Qt::ApplicationModal);
                   about->close();
               });
    EXPECT_EQ(window(item->form), nullptr);
}

}  // namespace
}  // namespace bm::ui::test
