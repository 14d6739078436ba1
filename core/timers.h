// What the frame's two timers do on each tick.
#pragma once

namespace morlan {

class Program;

// Every 750 ms: the line information of the active document, every second tick since the last key.
void Timer1_Timer(Program& program);
// Every 65535 ms: saves the active document when the auto-save period, counted in these ticks, is over.
void TimeCounter_Timer(Program& program);

}  // namespace morlan
