#pragma once
// Twips to the logical pixels of the screen. A definition's window size is the
// outer size of the window, frame and title bar included, as the screen shows
// it; the controls stand in the client area, whose origin is their (0, 0).
#include <QRect>
#include <QSize>
#include <cmath>

#include "forms/form_definition.hpp"

namespace bm::ui {

inline constexpr int kTwipsPerPixel = 15;
// What the frame of a fixed-size window takes from its outer size: both side
// borders across, the title bar and both borders down.
inline constexpr int kFrameAcrossPx = 8;
inline constexpr int kFrameDownPx = 30;

inline int Px(int twips) { return static_cast<int>(std::lround(twips / static_cast<double>(kTwipsPerPixel))); }
inline int Twips(int pixels) { return pixels * kTwipsPerPixel; }

inline QRect ToPixels(const Rect& r) { return QRect(Px(r.left), Px(r.top), Px(r.width), Px(r.height)); }

// The client area of a window whose outer size the definition gives.
inline QSize ClientSize(const Rect& window) {
    return QSize(std::max(1, Px(window.width) - kFrameAcrossPx), std::max(1, Px(window.height) - kFrameDownPx));
}

}  // namespace bm::ui
