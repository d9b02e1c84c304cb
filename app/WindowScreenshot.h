#pragma once

class SXDesktopApp;

// With SONORIA_SCREENSHOT=<file.png> set, the program writes a picture of its window there once
// the files named on its command line are listed, then ends (scripts/screenshot.sh). Without
// it, nothing happens.
void saveWindowScreenshotFromEnvironment(SXDesktopApp& app);
