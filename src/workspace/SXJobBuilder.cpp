#include "workspace/SXJobBuilder.h"

#include "base/SXBundle.h"
#include "base/SXSettings.h"

SXJobBuilder::Run SXJobBuilder::Run::fromSettings(const QString& startFolder,
                                                  bool organizeByFormat) {
    Run run{startFolder, organizeByFormat, SXSettings::boolForKey(SXSettingsKey::AppBSyncToLibrary),
            SXSettings::stringForKey(SXSettingsKey::libraryPlaylistName)};
    if (run.playlist.isEmpty())
        run.playlist = SXBundle::productName();
    return run;
}

QString SXJobBuilder::outputFolder(const SXFormatSetting& setting, const QString& startFolder,
                                   bool organizeByFormat) {
    if (!setting.outputPath().isEmpty())
        return setting.outputPath();
    return organizeByFormat ? startFolder + QLatin1Char('/') + setting.fmtName() : startFolder;
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
    job.outputName = media->strOutFileName();
    job.runLibraryScript = run.runLibraryScript;
    job.addToLibrary = setting.enumAddToLibrary() == 1;
    job.playlist = run.playlist;
    // What was asked; the values are measured before the run (SXLoudnessSurvey).
    job.loudness.tags = job.choices.replayGain;
    job.loudness.normalise = job.choices.normalise;
    return job;
}
