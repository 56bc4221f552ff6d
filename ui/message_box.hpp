#pragma once
// The message boxes of the logic: a style number says the icon and the buttons,
// and the button pressed comes back as a number (1 OK, 2 Cancel, 6 Yes, 7 No).
#include <QMessageBox>
#include <memory>
#include <string>

namespace bm::ui {

struct BoxStyle {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton defaultButton = QMessageBox::Ok;
    QMessageBox::StandardButton escapeButton = QMessageBox::NoButton;  // none: Escape does nothing
};

// 48: exclamation and OK; 36: question with Yes and No; 16: critical and OK.
// The buttons are the style's units, the icon its sixteens.
BoxStyle DecodeBoxStyle(int style);

// The number the logic sees for a button; a box closed without a button
// answers as its escape button would, or as No when it has none.
int AnswerCode(QMessageBox::StandardButton button, const BoxStyle& style);

// A box with the exact text and title, plain text, modal over the application.
std::unique_ptr<QMessageBox> BuildMessageBox(const std::string& text, int style, const std::string& title,
                                             QWidget* parent);

}  // namespace bm::ui
