#pragma once

// How a delivery to the music library ended. The conversion ignores it (a failed delivery never
// fails a conversion); it exists so that callers and tests can tell the cases apart.
enum class SXDeliveryResult {
    Added,              // the file joined the named playlist
    AlreadyListed,      // the playlist held the file already; nothing was written
    LibraryOnly,        // no playlist was asked for; the file is in the library
    LibraryUnreachable, // no library: the music folder cannot be made, or the server is down
    Failed,             // the library answered but refused the file or the playlist
};
