// The editors of frames, forms and the elements of forms.
#pragma once

namespace morlan {

class Program;

void RegisterFrameEditors(Program& program);

}  // namespace morlan
