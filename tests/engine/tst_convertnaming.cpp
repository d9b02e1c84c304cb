#include "support/TestSupport.h"

#include "engine/ConvertNaming.h"
#include "framework/MTEAudioFileMgr.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(ConvertNameTags)

class ConvertNamingTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void expansion_data() {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<ConvertNameTags>("tags"); // the file's name is always "01 intro"
        QTest::addColumn<QString>("expected");
        const ConvertNameTags full{u"Nina"_s, u"Various"_s,    u"Live"_s, u"Intro"_s,   u"3/12"_s,
                                   u"2"_s,    u"2019-05-01"_s, u"Jazz"_s, u"01 intro"_s};
        QTest::newRow("default") << u"{filename}"_s << full << u"01 intro"_s;
        QTest::newRow("empty pattern") << u""_s << full << u"01 intro"_s;
        QTest::newRow("folders") << u"{albumartist}/{album} ({year})/{disc}-{track:02} {title}"_s
                                 << full << u"Various/Live (2019)/2-03 Intro"_s;
        QTest::newRow("wide and plain numbers")
            << u"{track:03}.{track}.{disc:02}"_s << full << u"003.3.02"_s;
        QTest::newRow("artist and genre") << u"{genre}/{artist}"_s << full << u"Jazz/Nina"_s;
        QTest::newRow("fallbacks")
            << u"{albumartist}/{album}/{year}/{genre}/{track} {title}"_s << ConvertNameTags{}
            << u"Unknown Artist/Unknown Album/Unknown Year/"
               u"Unknown Genre/Unknown Track 01 intro"_s;
        // The album artist falls back to the artist, a title to the file's name.
        QTest::newRow("other fields")
            << u"{albumartist}/{title}"_s << ConvertNameTags{.artist = u"  Nina "_s}
            << u"Nina/01 intro"_s;
        QTest::newRow("no way up or out") << u"/../{album}//./x"_s << full << u"_/Live/_/x"_s;
        QTest::newRow("unknown field and lone brace")
            << u"{mood} {title"_s << full << u"{mood} {title"_s;
        // Tag values are text from anywhere: each becomes one safe name.
        const auto album = [](const QString& text) { return ConvertNameTags{.album = text}; };
        QTest::newRow("slash inside a value") << u"{album}"_s << album(u"AC/DC"_s) << u"AC_DC"_s;
        QTest::newRow("trailing space and dot")
            << u"{album}"_s << album(u"Vol. 2. . "_s) << u"Vol. 2"_s;
        QTest::newRow("control characters")
            << u"{album}"_s << album(u"a\tb\nc"_s + QChar(1) + u"d"_s) << u"a b c d"_s;
        QTest::newRow("nul") << u"{album}"_s << album(u"x\0y"_s) << u"x y"_s;
        QTest::newRow("lone surrogate")
            << u"{album}"_s << album(QString(QChar(0xD800)) + u"a"_s) << u"_a"_s;
    }
    void expansion() {
        QFETCH(QString, pattern);
        QFETCH(ConvertNameTags, tags);
        tags.fileName = u"01 intro"_s;
        QTEST(ConvertNaming::expand(pattern, tags), "expected");
    }

    // At most 255 bytes of UTF-8, cut between characters (two-, three- and four-byte ones), and
    // the last part keeps the room asked for.
    void longNamesAreCutAtCharacters_data() {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<int>("reserved");
        QTest::addColumn<int>("folderBytes");
        QTest::addColumn<int>("nameBytes");
        QTest::newRow("ascii") << u"a"_s << 0 << 255 << 255;
        QTest::newRow("two bytes") << u"é"_s << 0 << 254 << 254;
        QTest::newRow("three bytes") << u"€"_s << 0 << 255 << 255;
        QTest::newRow("four bytes") << u"𝄞"_s << 0 << 252 << 252;
        QTest::newRow("room kept for .mp3(1)") << u"𝄞"_s << 11 << 252 << 244;
    }
    void longNamesAreCutAtCharacters() {
        QFETCH(QString, unit);
        QFETCH(int, reserved);
        QFETCH(int, nameBytes);
        ConvertNameTags tags;
        tags.title = unit.repeated(300);
        const QStringList parts =
            ConvertNaming::expand(u"{title}/{title}"_s, tags, reserved).split(u'/');
        QCOMPARE(parts.size(), 2);
        QTEST(int(parts.first().toUtf8().size()), "folderBytes");
        QCOMPARE(parts.last().toUtf8().size(), nameBytes);
        QCOMPARE(parts.last(), unit.repeated(nameBytes / unit.toUtf8().size()));
    }

    void mirroredFolders_data() {
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("addedFrom");
        QTest::addColumn<QString>("expected");
        QTest::newRow("nested") << u"/in/A/B/x.flac"_s << u"/in"_s << u"A/B"_s;
        QTest::newRow("trailing slash") << u"/in/A/x.flac"_s << u"/in/"_s << u"A"_s;
        QTest::newRow("directly in it") << u"/in/x.flac"_s << u"/in"_s << u""_s;
        QTest::newRow("added alone") << u"/in/A/x.flac"_s << u""_s << u""_s;
        QTest::newRow("outside") << u"/other/x.flac"_s << u"/in"_s << u""_s;
        QTest::newRow("unsafe folder") << u"/in/.cache/-x/x.flac"_s << u"/in"_s << u"_cache/_x"_s;
        QTest::newRow("blank folder") << u"/in/  /x.flac"_s << u"/in"_s << u"_"_s;
    }
    void mirroredFolders() {
        QFETCH(QString, source);
        QFETCH(QString, addedFrom);
        QTEST(ConvertNaming::mirroredFolder(source, addedFrom), "expected");
    }

    // The values come from a real file's tags, the disc number included.
    void tagsOfARealFile() {
        QTemporaryDir dir;
        const QString path = dir.filePath(u"t.flac"_s);
        QVERIFY(SonoriaTest::makeTone(path, 0.5,
                                      {u"-metadata"_s, u"artist=Nina"_s, u"-metadata"_s,
                                       u"album=Live"_s, u"-metadata"_s, u"track=7"_s,
                                       u"-metadata"_s, u"disc=2/3"_s, u"-metadata"_s,
                                       u"title=Outro"_s, u"-metadata"_s, u"date=2001"_s}));
        const auto handle = MTEAudioFileMgr::createAudioFileWithPath(path, true);
        QVERIFY(handle);
        const ConvertNameTags tags =
            ConvertNameTags::of(handle.get(), u"t"_s, ConvertNaming::discOf(path));
        QCOMPARE(
            ConvertNaming::expand(u"{artist}/{album}/{disc}.{track:02} {title} {year}"_s, tags),
            u"Nina/Live/2.07 Outro 2001"_s);
        QCOMPARE(ConvertNaming::discOf(dir.filePath(u"missing.flac"_s)), QString());
    }
};

SONORIA_TEST_MAIN(ConvertNamingTest)
#include "tst_convertnaming.moc"
