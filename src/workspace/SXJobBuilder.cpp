#include "workspace/SXJobBuilder.h"

#include "base/SXInstallation.h"
#include "base/SXSafeName.h"
#include "base/SXSettings.h"
#include "engine/ConvertNaming.h"
#include "engine/ConvertOutputFile.h"
#include "framework/MTEAudioFile.h"
#include "online/SXPreferences.h"

#include <algorithm>

namespace {
// Room the last part of a name keeps for ".extension" and a counter "(12345)".
constexpr int kCounterBytes = 7;
} // namespace

SXJobBuilder::Run SXJobBuilder::Run::fromSettings(const QString& startFolder, bool organizeByFormat,
                                                  std::optional<ConvertExisting> existing) {
    Run run{startFolder, organizeByFormat, SXSettings::boolForKey(SXSettingsKey::AppBSyncToLibrary),
            SXSettings::stringForKey(SXSettingsKey::libraryPlaylistName),
            existing.value_or(SXPreferences::existingOutputs())};
    if (run.playlist.isEmpty())
        run.playlist = SXInstallation::productName();
    return run;
}

QString SXJobBuilder::outputFolder(const SXFormatSetting& setting, const QString& startFolder,
                                   bool organizeByFormat) {
    if (!setting.outputPath().isEmpty())
        return setting.outputPath();
    return organizeByFormat ? startFolder + QLatin1Char('/') + setting.fmtName() : startFolder;
}

QString SXJobBuilder::relativeOutput(const SXMusicInfo& item, const SXFormatSetting& setting) {
    const LSMediaPtr media = item.mediaInfo();
    if (!media)
        return {};
    const std::shared_ptr<MTEAudioFile> handle = item.metHandler();
    const ConvertNameTags tags =
        ConvertNameTags::of(handle.get(), media->strOutFileName(), media->discNumber());
    const int reserved = int(setting.outputExtName().toUtf8().size()) + 1 + kCounterBytes;
    const QString pattern = setting.namePattern().trimmed();
    // A container that asks for nothing else names its outputs exactly as it always has: after
    // the source, whose name the file system already took ("-live.flac" stays "-live.mp3").
    const bool asBefore = pattern.isEmpty() || pattern == ConvertNaming::defaultPattern();
    QString named = asBefore && !media->strOutFileName().isEmpty()
                        ? media->strOutFileName()
                        : ConvertNaming::expand(pattern, tags, reserved);
    // A cue track's own name is made from the sheet's title, which no file system has checked:
    // it gets the same length limit as a name from tags.
    if (asBefore && media->cueTrack())
        named = SXSafeName::component(named, std::max(1, SXSafeName::kMaxBytes - reserved));
    const QString mirrored =
        setting.mirrorFolders()
            ? ConvertNaming::mirroredFolder(media->filePath(), media->addedFromFolder())
            : QString();
    return mirrored.isEmpty() ? named : mirrored + QLatin1Char('/') + named;
}

ConvertJob SXJobBuilder::build(const SXMusicInfo& item, const SXFormatSetting& setting,
                               const Run& run) {
    const LSMediaPtr media = item.mediaInfo();
    ConvertJob job;
    job.sourcePath = media->filePath();
    job.sourceBitRate = media->audioBitrate();
    job.sourceSampleRate = media->audioSamplerate();
    job.sourceChannels = media->audioChannels();
    job.sourceDuration = media->duration();
    job.sourceDurationExact = media->durationExact();
    if (const std::optional<SXCueTrack> track = media->cueTrack()) {
        job.hasRange = true;
        job.rangeStartSample = track->startSample(job.sourceSampleRate);
        job.rangeEndSample = track->endSample(job.sourceSampleRate);
    }
    job.choices = setting.choices();
    job.encoder = setting.decodecName();
    job.extension = setting.outputExtName();
    job.formatName = item.getStrMusicType();
    job.outputFolder = outputFolder(setting, run.startFolder, run.organizeByFormat);
    const QString relative = relativeOutput(item, setting);
    const qsizetype slash = relative.lastIndexOf(QLatin1Char('/'));
    job.outputSubfolder = slash < 0 ? QString() : relative.left(slash);
    job.outputName = relative.mid(slash + 1);
    job.existing = run.existing;
    if (run.planned) {
        const QString planned = ConvertOutputFile::plannedPath(job);
        job.nameSharedInRun = run.planned->contains(planned);
        run.planned->insert(planned);
    }
    job.runLibraryScript = run.runLibraryScript;
    job.addToLibrary = setting.enumAddToLibrary() == 1;
    job.playlist = run.playlist;
    // What was asked; the values are measured before the run (SXLoudnessSurvey).
    job.loudness.tags = job.choices.replayGain;
    job.loudness.normalise = job.choices.normalise;
    return job;
}
