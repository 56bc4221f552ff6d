#include "ui/message_box.hpp"

#include <QAbstractButton>

namespace bm::ui {

BoxStyle DecodeBoxStyle(int style) {
    BoxStyle s;
    switch (style & 0x7) {
        case 1:
            s.buttons = QMessageBox::Ok | QMessageBox::Cancel;
            s.escapeButton = QMessageBox::Cancel;
            break;
        case 2:
            s.buttons = QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
            s.defaultButton = QMessageBox::Abort;
            break;
        case 3:
            s.buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
            s.defaultButton = QMessageBox::Yes;
            s.escapeButton = QMessageBox::Cancel;
            break;
        case 4:
            s.buttons = QMessageBox::Yes | QMessageBox::No;
            s.defaultButton = QMessageBox::Yes;
            break;
        case 5:
            s.buttons = QMessageBox::Retry | QMessageBox::Cancel;
            s.defaultButton = QMessageBox::Retry;
            s.escapeButton = QMessageBox::Cancel;
            break;
        default:
            s.buttons = QMessageBox::Ok;
            s.escapeButton = QMessageBox::Ok;
            break;
    }
    switch (style & 0x70) {
        case 16: s.icon = QMessageBox::Critical; break;
        case 32: s.icon = QMessageBox::Question; break;
        case 48: s.icon = QMessageBox::Warning; break;
        case 64: s.icon = QMessageBox::Information; break;
        default: break;
    }
    return s;
}

int AnswerCode(QMessageBox::StandardButton button, const BoxStyle& style) {
    if (button == QMessageBox::NoButton || !(style.buttons & button))
        button = style.escapeButton != QMessageBox::NoButton ? style.escapeButton : QMessageBox::No;
    switch (button) {
        case QMessageBox::Ok: return 1;
        case QMessageBox::Cancel: return 2;
        case QMessageBox::Abort: return 3;
        case QMessageBox::Retry: return 4;
        case QMessageBox::Ignore: return 5;
        case QMessageBox::Yes: return 6;
        default: return 7;
    }
}

std::unique_ptr<QMessageBox> BuildMessageBox(const std::string& text, int style, const std::string& title,
                                             QWidget* parent) {
    const BoxStyle s = DecodeBoxStyle(style);
    auto box = std::make_unique<QMessageBox>(parent);
    box->setWindowModality(Qt::ApplicationModal);
    box->setTextFormat(Qt::PlainText);
    box->setText(QString::fromStdString(text));
    box->setWindowTitle(QString::fromStdString(title));
    box->setIcon(s.icon);
    box->setStandardButtons(s.buttons);
    box->setDefaultButton(s.defaultButton);
    if (s.escapeButton != QMessageBox::NoButton) box->setEscapeButton(s.escapeButton);
    // Qt labels its standard buttons in the system language; these are the workbook's.
    const std::pair<QMessageBox::StandardButton, const char*> captions[] = {
        {QMessageBox::Ok, "OK"},           {QMessageBox::Cancel, "Annulla"}, {QMessageBox::Yes, "&Sì"},
        {QMessageBox::No, "&No"},          {QMessageBox::Abort, "Interrompi"}, {QMessageBox::Retry, "Riprova"},
        {QMessageBox::Ignore, "Ignora"},
    };
    for (const auto& [button, caption] : captions)
        if (QAbstractButton* b = box->button(button)) b->setText(QString::fromUtf8(caption));
    return box;
}

}  // namespace bm::ui
