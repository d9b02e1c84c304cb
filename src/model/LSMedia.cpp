#include "LSMedia.h"

#include <QStringLiteral>

#define SX_LOCKED_PROPERTY(Type, getter, setter, field)                                            \
    Type LSMedia::getter() const {                                                                 \
        QMutexLocker guard(&m_lock);                                                               \
        return field;                                                                              \
    }                                                                                              \
    void LSMedia::setter(Type value) {                                                             \
        QMutexLocker guard(&m_lock);                                                               \
        field = value;                                                                             \
    }

SX_LOCKED_PROPERTY(bool, bSampleQuality, setBSampleQuality, m_bSampleQuality)
SX_LOCKED_PROPERTY(int, iAOChannels, setIAOChannels, m_iAOChannels)
SX_LOCKED_PROPERTY(int, eumCvtState, setEumCvtState, m_eumCvtState)
SX_LOCKED_PROPERTY(double, dFileSize, setDFileSize, m_dFileSize)
SX_LOCKED_PROPERTY(double, dAOBitrate, setDAOBitrate, m_dAOBitrate)
SX_LOCKED_PROPERTY(double, dAOSamplerate, setDAOSamplerate, m_dAOSamplerate)
SX_LOCKED_PROPERTY(double, dProgress, setDProgress, m_dProgress)
SX_LOCKED_PROPERTY(double, dLeftTime, setDLeftTime, m_dLeftTime)

#undef SX_LOCKED_PROPERTY

#define SX_LOCKED_STRING(getter, setter, field)                                                    \
    QString LSMedia::getter() const {                                                              \
        QMutexLocker guard(&m_lock);                                                               \
        return field;                                                                              \
    }                                                                                              \
    void LSMedia::setter(const QString& value) {                                                   \
        QMutexLocker guard(&m_lock);                                                               \
        field = value;                                                                             \
    }

SX_LOCKED_STRING(strLastModified, setStrLastModified, m_strLastModified)
SX_LOCKED_STRING(vOACodecName, setVOACodecName, m_vOACodecName)
SX_LOCKED_STRING(strDescription, setStrDescription, m_strDescription)
SX_LOCKED_STRING(strOutFileName, setStrOutFileName, m_strOutFileName)
SX_LOCKED_STRING(strOutFileExt, setStrOutFileExt, m_strOutFileExt)
SX_LOCKED_STRING(failReason, setFailReason, m_failReason)

#undef SX_LOCKED_STRING

std::shared_ptr<LSMedia> LSMedia::copy() const {
    auto result = std::make_shared<LSMedia>();
    copyBaseTo(*result);
    result->setBSampleQuality(bSampleQuality());
    result->setDAOBitrate(dAOBitrate());
    result->setDAOSamplerate(dAOSamplerate());
    result->setVOACodecName(vOACodecName());
    result->setIAOChannels(iAOChannels());
    result->setDProgress(dProgress());
    result->setDLeftTime(dLeftTime());
    result->setEumCvtState(eumCvtState());
    result->setStrDescription(strDescription());
    result->setStrOutFileName(strOutFileName());
    result->setStrOutFileExt(strOutFileExt());
    result->setFailReason(failReason());
    result->setStrLastModified(strLastModified());
    result->setDFileSize(dFileSize());
    return result;
}

QString LSMedia::description() const {
    return QStringLiteral("id:%1, filePath = %2")
        .arg(QString::asprintf("%p", static_cast<const void*>(this)), filePath());
}

void LSMedia::encodeWithCoder(SXCoder& coder) const {
    if (!coder.allowsKeyedCoding())
        return;
    HVMediaInfoItem::encodeWithCoder(coder);
    coder.encode(QStringLiteral("strLastModified"), strLastModified());
    coder.encode(QStringLiteral("dFileSize"), dFileSize());
    coder.encode(QStringLiteral("eumCvtState"), eumCvtState());
    coder.encode(QStringLiteral("eumMediaType"), eumMediaType());
    coder.encode(QStringLiteral("dAOBitrate"), dAOBitrate());
    coder.encode(QStringLiteral("dAOSamplerate"), dAOSamplerate());
    coder.encode(QStringLiteral("iAOChannels"), iAOChannels());
    coder.encode(QStringLiteral("vOACodecName"), vOACodecName());
    coder.encode(QStringLiteral("strOutFileExt"), strOutFileExt());
    coder.encode(QStringLiteral("strOutFileName"), strOutFileName());
}

void LSMedia::initWithCoder(const SXCoder& coder) {
    if (!coder.allowsKeyedCoding())
        return;
    HVMediaInfoItem::initWithCoder(coder);
    // Fields that are not archived come back empty, quality included.
    setBSampleQuality(false);
    setStrLastModified(coder.decodeString(QStringLiteral("strLastModified")));
    setDFileSize(coder.decodeDouble(QStringLiteral("dFileSize")));
    setEumCvtState(coder.decodeInt(QStringLiteral("eumCvtState")));
    setEumMediaType(coder.decodeInt(QStringLiteral("eumMediaType")));
    setDAOBitrate(coder.decodeDouble(QStringLiteral("dAOBitrate")));
    setDAOSamplerate(coder.decodeDouble(QStringLiteral("dAOSamplerate")));
    setIAOChannels(coder.decodeInt(QStringLiteral("iAOChannels")));
    setVOACodecName(coder.decodeString(QStringLiteral("vOACodecName")));
    setStrOutFileExt(coder.decodeString(QStringLiteral("strOutFileExt")));
    setStrOutFileName(coder.decodeString(QStringLiteral("strOutFileName")));
}

std::shared_ptr<LSMedia> LSMedia::decodeWithCoder(const SXCoder& coder) {
    auto media = std::make_shared<LSMedia>();
    media->setBSampleQuality(false);
    media->initWithCoder(coder);
    return media;
}
