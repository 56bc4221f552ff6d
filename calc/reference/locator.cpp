#include "calc/reference/locator.hpp"

namespace bm::reference {

void CenterAcross(FormContext& f) {
    const Rect w = f.window();
    // Twips are whole: the half twip of an odd difference is dropped.
    f.moveWindow((f.screenWidth() - w.width) / 2, w.top);
}

}  // namespace bm::reference
