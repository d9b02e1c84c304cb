#include "framework/MTEAudioFilePrivate.h"

// The generic fields, each under the own key of the handle's tag family.
QString MTEAudioFile::title() const {
    return d->text(MTETagField::Title);
}
void MTEAudioFile::setTitle(const QString& value) {
    d->setText(MTETagField::Title, value);
}
QString MTEAudioFile::artist() const {
    return d->text(MTETagField::Artist);
}
void MTEAudioFile::setArtist(const QString& value) {
    d->setText(MTETagField::Artist, value);
}
QString MTEAudioFile::albumArtist() const {
    return d->text(MTETagField::AlbumArtist);
}
void MTEAudioFile::setAlbumArtist(const QString& value) {
    d->setText(MTETagField::AlbumArtist, value);
}
QString MTEAudioFile::composer() const {
    return d->text(MTETagField::Composer);
}
void MTEAudioFile::setComposer(const QString& value) {
    d->setText(MTETagField::Composer, value);
}
QString MTEAudioFile::album() const {
    return d->text(MTETagField::Album);
}
void MTEAudioFile::setAlbum(const QString& value) {
    d->setText(MTETagField::Album, value);
}
QString MTEAudioFile::date() const {
    return d->text(MTETagField::Date);
}
void MTEAudioFile::setDate(const QString& value) {
    d->setText(MTETagField::Date, value);
}
QString MTEAudioFile::genre() const {
    return d->text(MTETagField::Genre);
}
void MTEAudioFile::setGenre(const QString& value) {
    d->setText(MTETagField::Genre, value);
}
QString MTEAudioFile::track() const {
    return d->text(MTETagField::Track);
}
void MTEAudioFile::setTrack(const QString& value) {
    d->setText(MTETagField::Track, value);
}
QString MTEAudioFile::copyright() const {
    return d->text(MTETagField::Copyright);
}
void MTEAudioFile::setCopyright(const QString& value) {
    d->setText(MTETagField::Copyright, value);
}
QString MTEAudioFile::publisher() const {
    return d->text(MTETagField::Publisher);
}
void MTEAudioFile::setPublisher(const QString& value) {
    d->setText(MTETagField::Publisher, value);
}
QString MTEAudioFile::comment() const {
    return d->text(MTETagField::Comment);
}
void MTEAudioFile::setComment(const QString& value) {
    d->setText(MTETagField::Comment, value);
}
QString MTEAudioFile::lyric() const {
    return d->text(MTETagField::Lyric);
}
void MTEAudioFile::setLyric(const QString& value) {
    d->setText(MTETagField::Lyric, value);
}
QString MTEAudioFile::grouping() const {
    return d->text(MTETagField::Grouping);
}
void MTEAudioFile::setGrouping(const QString& value) {
    d->setText(MTETagField::Grouping, value);
}

MTEArtworkList MTEAudioFile::albumImg() const {
    const QString key = d->artworkKey();
    return key.isEmpty() ? MTEArtworkList() : MTETagFamily::artworkFromVariant(d->value(key));
}

void MTEAudioFile::setAlbumImg(const MTEArtworkList& images) {
    d->setValue(d->artworkKey(), QVariant::fromValue(images));
}
