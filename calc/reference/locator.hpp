#pragma once
// What the two windows of the world wide locator share.
#include "forms/form_context.hpp"

namespace bm::reference {

// Left = (screen width - window width) / 2; the top stays where it was drawn,
// so the two windows stand one above the other.
void CenterAcross(FormContext& f);

}  // namespace bm::reference
