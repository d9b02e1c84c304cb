#include "workspace/SXFormatChooser.h"

SXFormatChooser::SXFormatChooser(const QList<SXFormatSettingPtr>& leftFmts)
    : m_leftFmts(leftFmts) {}

QStringList SXFormatChooser::formatNames() const {
    QStringList names;
    for (const SXFormatSettingPtr& format : m_leftFmts)
        names.append(format->fmtName());
    return names;
}

SXFormatSettingPtr SXFormatChooser::find(const QString& name) const {
    for (const SXFormatSettingPtr& format : m_leftFmts) {
        if (format->fmtName() == name)
            return format;
    }
    return nullptr;
}

SXFormatChooser::Choices SXFormatChooser::changeFormatSelect(const QString& name) const {
    Choices choices;
    const SXFormatSettingPtr format = find(name);
    if (!format)
        return choices;
    choices.bitRates = format->aryBiteRate();
    choices.channels = format->aryChannels();
    choices.sampleRates = format->arySampleRate();
    choices.bitRate = format->bitRate();
    choices.channel = format->channels();
    choices.sampleRate = format->sampleRate();
    choices.libraryVisible = format->enumAddToLibrary() != -1;
    choices.libraryOn = format->enumAddToLibrary() == 1;
    return choices;
}

SXFormatSettingPtr SXFormatChooser::getFormatSettingResult(const Selection& selection) const {
    const SXFormatSettingPtr format = find(selection.format);
    if (!format)
        return nullptr;
    SXFormatSettingPtr result = format->copy();
    result->setSampleRate(selection.sampleRate);
    result->setBiteRate(selection.bitRate);
    result->setChannels(selection.channel);
    if (result->enumAddToLibrary() != -1)
        result->setEnumAddToLibrary(selection.libraryOn ? 1 : 0);
    return result;
}
