#pragma once
// The pictures that definitions name: drawn here at the size they are shown,
// so they stay sharp at any size. A name this file does not know draws a
// neutral placeholder.
#include <QPixmap>
#include <QSize>
#include <QString>
#include <string_view>

namespace bm::ui {

QPixmap RenderPicture(std::string_view name, QSize size);
bool IsKnownPicture(std::string_view name);
// A short Italian description of the picture, for screen readers.
QString PictureDescription(std::string_view name);

}  // namespace bm::ui
