// How many of the toolkit's timers are waiting.
#pragma once

// Those that the program and its libraries have set and not taken back, and that have not fired.
int liveTimers();
