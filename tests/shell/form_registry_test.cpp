#include "shell/form_registry.hpp"

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "core/number_locale.hpp"
#include "forms/headless_host.hpp"
#include "shell/workbook.hpp"

namespace bm {
namespace {

struct Row {
    int level = 0;
    std::string name, caption, form, how;
};

// menu_tree.txt: one item per line, tab-separated, caption in quotes.
std::vector<Row> ExpectedTree() {
    std::ifstream in(BM_MENU_TREE);
    EXPECT_TRUE(in) << "cannot read " << BM_MENU_TREE;
    std::vector<Row> rows;
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        std::vector<std::string> f;
        std::stringstream fields(line);
        for (std::string cell; std::getline(fields, cell, '\t');) f.push_back(cell);
        EXPECT_EQ(f.size(), 5u) << line;
        if (f.size() != 5 || f[2].size() < 2) continue;
        rows.push_back({std::stoi(f[0]), f[1], f[2].substr(1, f[2].size() - 2), f[3] == "-" ? "" : f[3],
                        f[4] == "-" ? "" : f[4]});
    }
    return rows;
}

std::string How(const MenuItem& m) {
    if (m.isSubmenu()) return "";
    return m.modality == OpenModal ? "modal" : "modeless";
}

TEST(FormRegistry, MatchesTheMenuTable) {
    const std::vector<Row> want = ExpectedTree();
    const auto items = FormRegistry::items();
    ASSERT_EQ(items.size(), want.size());
    for (std::size_t i = 0; i < want.size(); ++i) {
        SCOPED_TRACE("row " + std::to_string(i) + ": " + want[i].name);
        EXPECT_EQ(items[i].level, want[i].level);
        EXPECT_EQ(items[i].name, want[i].name);
        EXPECT_EQ(items[i].caption, want[i].caption);
        EXPECT_EQ(items[i].form, want[i].form);
        EXPECT_EQ(How(items[i]), want[i].how);
    }
}

TEST(FormRegistry, TreeShape) {
    const auto items = FormRegistry::items();
    ASSERT_FALSE(items.empty());
    EXPECT_EQ(items.front().level, 1);
    std::set<std::string> names;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const MenuItem& m = items[i];
        SCOPED_TRACE(m.name);
        EXPECT_TRUE(names.insert(m.name).second) << "item name used twice";
        if (i > 0) {
            EXPECT_LE(m.level, items[i - 1].level + 1) << "a level skipped";
        }
        // A submenu holds at least one item; anything else opens a form.
        const bool hasChildren = i + 1 < items.size() && items[i + 1].level == m.level + 1;
        EXPECT_EQ(m.isSubmenu(), hasChildren);
        if (m.level == 1 && !m.isSubmenu()) {
            EXPECT_EQ(m.caption, "Leggimi");
        }
    }
    EXPECT_EQ(items.back().name, "mnuinfo");
}

// The access keys on the menu bar must not collide.
TEST(FormRegistry, MenuBarAccessKeysAreDistinct) {
    std::set<char> keys;
    for (const MenuItem& m : FormRegistry::items()) {
        const auto amp = m.caption.find('&');
        if (amp == std::string::npos) continue;
        EXPECT_EQ(m.level, 1) << m.name;
        ASSERT_LT(amp + 1, m.caption.size()) << m.name;
        EXPECT_TRUE(keys.insert(static_cast<char>(std::tolower(static_cast<unsigned char>(m.caption[amp + 1])))).second) << m.name;
    }
}

TEST(FormRegistry, FormsReachedTwiceOpenTheSameWay) {
    std::map<std::string, std::vector<const MenuItem*>> byForm;
    for (const MenuItem& m : FormRegistry::items())
        if (!m.isSubmenu()) byForm[m.form].push_back(&m);
    std::set<std::string> shared;
    for (const auto& [form, items] : byForm) {
        if (items.size() < 2) continue;
        shared.insert(form);
        for (const MenuItem* m : items) EXPECT_EQ(m->modality, items.front()->modality) << m->name;
        EXPECT_EQ(FormRegistry::firstFor(form), items.front());
    }
    EXPECT_EQ(shared, (std::set<std::string>{"frmradianti", "frmERP", "frmimpedenza", "frmlineaunifilare",
                                             "frmlineabifilare"}));
}

TEST(FormRegistry, Lookups) {
    const MenuItem* bobine = FormRegistry::find("MNUBOBINEUHF");
    ASSERT_NE(bobine, nullptr);
    EXPECT_EQ(bobine->form, "frmbobineuhf");
    EXPECT_EQ(FormRegistry::find("mnubobineuhf"), nullptr);  // names are case-sensitive
    EXPECT_EQ(FormRegistry::find("nothing"), nullptr);

    ASSERT_NE(FormRegistry::firstFor("frmERP"), nullptr);
    EXPECT_EQ(FormRegistry::firstFor("frmERP")->name, "mnuerp");
    EXPECT_EQ(FormRegistry::firstFor("frmradianti")->name, "mnuradiant");
    for (const char* noItem : {"frmaltreconversioni", "frmavvertenza", "frmhelpcondensatore", "frminfoloop",
                               "frmwwl", "FRMBANCOMISURATORE", ""})
        EXPECT_EQ(FormRegistry::firstFor(noItem), nullptr) << noItem;
}

// No item of the menu is left disabled: every one opens its form as the
// registry says, starting the main window first.
TEST(FormRegistry, EveryItemOpensItsForm) {
    const Workbook book;
    for (const MenuItem& m : FormRegistry::items()) {
        if (m.isSubmenu()) continue;
        SCOPED_TRACE(m.name);
        ASSERT_NE(book.find(m.form), nullptr) << m.form << " is not built: its item would be disabled";
        HeadlessHost host;
        Program program(book, host, NumberLocale::english());
        ASSERT_EQ(ChooseMenuItem(program, m.name), Program::Status::Running);
        ASSERT_NE(program.state(kMainForm), nullptr);
        EXPECT_TRUE(program.state(kMainForm)->shown);
        const FormState* st = program.state(m.form);
        ASSERT_NE(st, nullptr);
        EXPECT_TRUE(st->shown);
        EXPECT_EQ(st->modality, m.modality);
    }
}

}  // namespace
}  // namespace bm
