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

QPalette WorkbookPalette() {
    // Every role of every group is set, so nothing of a dark desktop theme shows
    // through: black text on white boxes and on the grey face, as the windows were drawn.
    const QColor face = ToQColor(colors::ButtonFace);
    const QColor black(0, 0, 0);
    const QColor white(255, 255, 255);
    const QColor grey(128, 128, 128);
    QPalette p(black, face, white, QColor(64, 64, 64), QColor(160, 160, 160), black, white, white, face);
    for (QPalette::ColorGroup g : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        p.setColor(g, QPalette::AlternateBase, QColor(236, 233, 216));
        p.setColor(g, QPalette::ToolTipBase, QColor(255, 255, 225));
        p.setColor(g, QPalette::ToolTipText, black);
        p.setColor(g, QPalette::Highlight, QColor(10, 36, 106));
        p.setColor(g, QPalette::HighlightedText, white);
        p.setColor(g, QPalette::Link, QColor(0, 0, 255));
        p.setColor(g, QPalette::LinkVisited, QColor(128, 0, 128));
        p.setColor(g, QPalette::PlaceholderText, grey);
        p.setColor(g, QPalette::BrightText, white);
        p.setColor(g, QPalette::Light, white);
        p.setColor(g, QPalette::Midlight, QColor(227, 227, 227));
    }
    for (QPalette::ColorRole r : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, r, grey);
    p.setColor(QPalette::Disabled, QPalette::Base, face);
    return p;
}

void ApplyWorkbookStyle(QApplication& app) {
    if (QStyle* fusion = QStyleFactory::create(QStringLiteral("Fusion"))) QApplication::setStyle(fusion);
    QApplication::setPalette(WorkbookPalette());
    app.setFont(ControlFont(8, false));
}

}  // namespace bm::ui
