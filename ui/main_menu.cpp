#include "ui/main_menu.hpp"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <vector>

namespace bm::ui {

void BuildMainMenu(QMenuBar& bar, std::span<const MenuItem> items,
                   const std::function<bool(std::string_view form)>& isBuilt,
                   const std::function<void(const std::string& item)>& choose) {
    // The window is as wide as its picture, and every menu of the bar must show
    // on its one row: items get narrow margins, as on the system the sizes were drawn for.
    bar.setStyleSheet(QStringLiteral(
        "QMenuBar { spacing: 0px; }"
        "QMenuBar::item { padding: 3px 4px; background: transparent; }"
        "QMenuBar::item:selected { background: palette(highlight); color: palette(highlighted-text); }"));
    // open[level] is the submenu that items of level + 1 go into; level 0 is the bar.
    std::vector<QWidget*> open{&bar};
    for (const MenuItem& item : items) {
        const std::size_t level = static_cast<std::size_t>(std::max(1, item.level));
        if (open.size() > level) open.resize(level);
        // A level skipped in the table hangs the item on the deepest menu open.
        QWidget* parent = open.back();
        const QString caption = QString::fromStdString(item.caption);
        if (item.isSubmenu()) {
            auto* menu = new QMenu(caption, parent);
            menu->setObjectName(QString::fromStdString(item.name));
            menu->menuAction()->setObjectName(QString::fromStdString(item.name));
            parent->addAction(menu->menuAction());
            open.push_back(menu);
            continue;
        }
        auto* action = new QAction(caption, parent);
        action->setObjectName(QString::fromStdString(item.name));
        action->setEnabled(isBuilt(item.form));
        QObject::connect(action, &QAction::triggered, action, [choose, name = item.name] { choose(name); });
        parent->addAction(action);
    }
}

}  // namespace bm::ui
