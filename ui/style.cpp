#include "ui/style.hpp"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace bm::ui {

namespace {

// The window sizes were laid out for a narrow 8-point sans serif: the first of
// these that the system has keeps the captions inside their boxes.
QString WorkbookFamily() {
    static const QString family = [] {
        const QStringList installed = QFontDatabase::families();
        for (const char* name : {"Microsoft Sans Serif", "MS Sans Serif", "Tahoma", "Arial", "Liberation Sans",
                                 "Helvetica", "DejaVu Sans Condensed", "DejaVu Sans"}) {
            if (installed.contains(QString::fromLatin1(name))) return QString::fromLatin1(name);
        }
        return QApplication::font().family();
    }();
    return family;
}

}  // namespace

QFont ControlFont(int points, bool bold) {
    QFont f(WorkbookFamily());
    f.setPointSize(points > 0 ? points : 8);
    f.setBold(bold);
    return f;
}

void ApplyWorkbookStyle(QApplication& app) {
    if (QStyle* fusion = QStyleFactory::create(QStringLiteral("Fusion"))) QApplication::setStyle(fusion);
    QPalette p = QApplication::style()->standardPalette();
    const QColor face = ToQColor(colors::ButtonFace);
    p.setColor(QPalette::Window, face);
    p.setColor(QPalette::Button, face);
    QApplication::setPalette(p);
    app.setFont(ControlFont(8, false));
}

}  // namespace bm::ui
