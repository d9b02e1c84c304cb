#pragma once

#include <array>
#include <cstddef>

// The generic field names the rest of the program uses, in one fixed order. Every tag family
// fills a key table in this order, so a missing or extra entry fails to compile.
enum class MTETagField : int {
    Title,
    Artist,
    AlbumArtist,
    Composer,
    Album,
    Date,
    Genre,
    Track,
    Copyright,
    Publisher,
    Comment,
    Lyric,
    Grouping,
    AlbumImg,
    Count
};

inline constexpr std::size_t kMTETagFieldCount = static_cast<std::size_t>(MTETagField::Count);

inline constexpr std::array<const char*, kMTETagFieldCount> kMTEGenericFieldNames{
    "title", "artist",    "albumArtist", "composer", "album", "date",     "genre",
    "track", "copyright", "publisher",   "comment",  "lyric", "grouping", "albumImg"};

// One own key per generic field, in MTETagField order; "" for a field the family cannot hold.
using MTEKeyTable = std::array<const char*, kMTETagFieldCount>;

// True when every entry is set: std::array quietly fills missing initialisers with nullptr.
constexpr bool mteKeyTableComplete(const MTEKeyTable& table) {
    for (const char* key : table) {
        if (key == nullptr)
            return false;
    }
    return true;
}

static_assert(mteKeyTableComplete(kMTEGenericFieldNames));
