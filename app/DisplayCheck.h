#pragma once

// True, after telling the user on standard error, when the program cannot open a window: no X
// or Wayland display in the environment and no platform chosen with -platform or
// $QT_QPA_PLATFORM. Must run before the application object exists, whose own failure aborts.
bool refusedWithoutDisplay(int argc, char** argv);
