#pragma once

#include <QString>
#include <optional>

// What a conversion does when its output's planned name is already taken on disk.
enum class ConvertExisting {
    // The file there is an earlier result (newer than the source and whole): nothing to do.
    // Anything else there is kept and the new output numbered.
    Skip,
    // The new output is numbered, as it always was ("name(1).mp3").
    KeepBoth,
    // An output this program wrote there is replaced, once the new one is whole; a file it did
    // not write is kept and the new output numbered.
    Replace,
};

namespace ConvertExistingNames {
// The words the settings store and the command line use: "skip", "both", "replace".
inline QString name(ConvertExisting policy) {
    switch (policy) {
    case ConvertExisting::KeepBoth:
        return QStringLiteral("both");
    case ConvertExisting::Replace:
        return QStringLiteral("replace");
    case ConvertExisting::Skip:
        break;
    }
    return QStringLiteral("skip");
}

inline std::optional<ConvertExisting> parse(const QString& word) {
    for (const ConvertExisting policy :
         {ConvertExisting::Skip, ConvertExisting::KeepBoth, ConvertExisting::Replace}) {
        if (word.compare(name(policy), Qt::CaseInsensitive) == 0)
            return policy;
    }
    return std::nullopt;
}
} // namespace ConvertExistingNames
