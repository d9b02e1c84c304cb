# The Debian package, made by `cpack -G DEB` in a build folder (scripts/package.sh). It holds what
# `cmake --install` installs, under /usr. Its library dependencies are computed from the binaries
# by dpkg-shlibdeps; ffmpeg is added by hand because it is run, not linked, and libqt6svg6 because
# the window's icons are SVG, drawn by Qt's plugins that no binary of ours links.
set(CPACK_PACKAGE_NAME sonoria)
set(CPACK_PACKAGE_VENDOR "The Sonoria developers")
set(CPACK_PACKAGE_CONTACT "Sonoria maintainers <maintainers@sonoria.app>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "desktop audio converter")
set(CPACK_PACKAGE_DESCRIPTION
    "Sonoria converts audio files, and the sound of video files, to MP3, AAC, FLAC, Ogg Vorbis,
Opus, WAV, WMA, ringtones and other audio formats with ffmpeg, several at a time, and copies
their tags and cover art into the results. Files are dropped into containers, one per output
format. The package holds the desktop program sonoria, the command-line tool sonoria-cli and
sonoria-worker, the converter both keep running for short files.")
set(CPACK_PACKAGE_HOMEPAGE_URL "https://sonoria.app")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "ffmpeg, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS mpd)

set(CPACK_GENERATOR DEB)
set(CPACK_SOURCE_GENERATOR "")
include(CPack)
