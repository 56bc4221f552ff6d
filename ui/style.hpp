#pragma once
// The look shared by every window of the workbook: one widget style, the
// classic grey face, and the sans-serif family closest to the one the window
// sizes were drawn for.
#include <QColor>
#include <QFont>
#include <QPalette>

#include "forms/form_definition.hpp"

class QApplication;

namespace bm::ui {

void ApplyWorkbookStyle(QApplication& app);

// The workbook's own light palette, whatever the desktop's theme.
QPalette WorkbookPalette();

// A control's font: the family of the workbook at the definition's size.
QFont ControlFont(int points, bool bold);

inline QColor ToQColor(const Color& c) { return QColor(c.r, c.g, c.b); }

}  // namespace bm::ui
