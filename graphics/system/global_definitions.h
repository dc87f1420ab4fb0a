#pragma once
// Everything of the attribute side that is defined for the whole process
// rather than on a segment: global textures, line styles, highlights,
// explicit priorities and callback names.
namespace graphics {

// Forgets all of them, as a fresh engine would have none.
void ClearGlobalDefinitions();

}  // namespace graphics
