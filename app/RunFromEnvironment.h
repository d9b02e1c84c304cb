#pragma once

class SXDesktopApp;

// Test-only: with SONORIA_TEST_RUN_INTO=<folder> set, the program starts converting the files
// named on its command line into that folder once they are listed, without asking for a folder
// (tests/gui/application/tst_appsignals, which stops such a run with a signal). Nothing is stored:
// the run keeps the stored choices apart from the folder. Without it, nothing happens.
void startRunFromEnvironment(SXDesktopApp& app);
