#include "model/SXFormatSetting.h"

std::shared_ptr<SXFormatSetting> SXFormatSetting::copy() const {
    auto result = std::make_shared<SXFormatSetting>();
    result->setFmtName(m_fmtName);
    result->setFmtDescribe(m_fmtDescribe);
    result->setSampleRate(m_sampleRate);
    result->setBiteRate(m_bitRate);
    result->setChannels(m_channels);
    // The lists are handed over, not duplicated: QStringList's implicit sharing keeps one list.
    result->setAryBiteRate(m_aryBiteRate);
    result->setAryChannels(m_aryChannels);
    result->setArySampleRate(m_arySampleRate);
    result->setDecodecName(m_decodecName);
    result->setOutputExtName(m_outputExtName);
    result->setStrImgFileName(m_strImgFileName);
    result->setOutputPath(m_outputPath);
    result->setEnumAddToLibrary(m_enumAddToLibrary);
    result->setReplayGain(m_replayGain);
    result->setNormalise(m_normalise);
    result->setNamePattern(m_namePattern);
    result->setMirrorFolders(m_mirrorFolders);
    return result;
}

QString SXFormatSetting::description() const {
    return QStringLiteral("<SXFormatSetting: 0x%1>").arg(reinterpret_cast<quintptr>(this), 0, 16);
}
