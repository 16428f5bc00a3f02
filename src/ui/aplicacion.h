#pragma once

namespace bosquel {

/// What all windows of the program have in common, the toolkit's own among them: Spanish words and numbers,
/// buttons without pictures that stand in one order on every desktop, the icon. To be called once, when the
/// application exists and before its first window.
void prepararAplicacion();

}  // namespace bosquel
