#include "ui/style.hpp"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace bm::ui {

namespace {

// The window sizes were laid out for a narrow 8-point sans serif: the font
// takes the first of these that the system has. The font matcher goes down
// the list itself, so nothing has to enumerate every installed family first.
const QStringList& WorkbookFamilies() {
    static const QStringList families = {
        QStringLiteral("Microsoft Sans Serif"), QStringLiteral("MS Sans Serif"), QStringLiteral("Tahoma"),
        QStringLiteral("Arial"),                QStringLiteral("Liberation Sans"), QStringLiteral("Helvetica"),
        QStringLiteral("DejaVu Sans Condensed"), QStringLiteral("DejaVu Sans")};
    return families;
}

}  // namespace

QFont ControlFont(int points, bool bold) {
    QFont f;
    f.setFamilies(WorkbookFamilies());
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
