#pragma once

#include <QString>

// What Help ▸ About Sonoria says: the version, the licence and the versions of the libraries in
// use, as this process actually loaded them (Qt and FFmpeg answer at run time; TagLib only knows
// the version it was built with).
struct SXAboutText {
    QString title; // "About Sonoria"
    QString text;  // rich text for QMessageBox::about

    static SXAboutText current();

    // The pieces, for the command-line tool and the tests.
    static QString licence();
    static QString qtVersion();
    static QString ffmpegVersion();   // FFmpeg's own release text, as av_version_info gives it
    static QString avformatVersion(); // "59.27.100"
    static QString avcodecVersion();
    static QString taglibVersion();
};
