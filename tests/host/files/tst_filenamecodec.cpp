#include "host/files/filenamecodec.h"

#include "host/files/localpath.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

/*! Names as bytes, and the texts that stand for them. */
class TestFileNameCodec : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { installFileNameCodec(); }

    void everyNameRoundTrips_data();
    void everyNameRoundTrips();
    void everyPairOfBytesRoundTrips();
    void otherLoneSurrogatesAreReplaced();
    void decodingInChunksGivesTheSameText_data();
    void decodingInChunksGivesTheSameText();
    void encodingInChunksGivesTheSameBytes_data() { decodingInChunksGivesTheSameText_data(); }
    void encodingInChunksGivesTheSameBytes();
    void filesAreCreatedListedAndPassedToPrograms_data();
    void filesAreCreatedListedAndPassedToPrograms();
    void urlsReferToTheSameFile_data() { filesAreCreatedListedAndPassedToPrograms_data(); }
    void urlsReferToTheSameFile();
};

void TestFileNameCodec::everyNameRoundTrips_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QByteArray &bytes, const QString &text) {
        QTest::newRow(name) << bytes << text;
    };
    const auto escaped = [](const QByteArray &bytes) {
        QString text;
        for (const char byte : bytes) {
            text += QChar(0xDC00 + uchar(byte));
        }
        return text;
    };
    row("empty", "", QString());
    row("ASCII", "clip.mp4", QStringLiteral("clip.mp4"));
    row("NUL", QByteArray("a\0b", 3), QStringLiteral("a") + QChar(0) + QLatin1Char('b'));
    row("two bytes", "caf\xc3\xa9", QStringLiteral("caf\u00E9"));
    row("three bytes", "\xe6\x97\xa5", QStringLiteral("\u65E5"));
    row("four bytes", "\xf0\x9f\x98\x80", QStringLiteral("\U0001F600"));
    row("last character", "\xf4\x8f\xbf\xbf", QStringLiteral("\U0010FFFF"));
    row("noncharacter", "\xef\xbf\xbe", QString(QChar(0xFFFE)));
    row("byte order mark", "\xef\xbb\xbfx", QChar(0xFEFF) + QStringLiteral("x"));
    row("Latin-1", "caf\xe9.mp4", QStringLiteral("caf") + escaped("\xe9") + QStringLiteral(".mp4"));
    row("Latin-1 at the end", "caf\xe9", QStringLiteral("caf") + escaped("\xe9"));
    row("cut off", "\xf0\x9f\x98", escaped("\xf0\x9f\x98"));
    row("cut off, then a character", "\xe6\x97\xc3\xa9",
        escaped("\xe6\x97") + QStringLiteral("\u00E9"));
    row("byte behind a character", "\xf0\x9f\x98\x80\x80",
        QStringLiteral("\U0001F600") + escaped("\x80"));
    row("overlong, two bytes", "\xc0\xaf", escaped("\xc0\xaf"));
    row("overlong, three bytes", "\xe0\x80\xaf", escaped("\xe0\x80\xaf"));
    row("overlong, four bytes", "\xf0\x80\x80\xaf", escaped("\xf0\x80\x80\xaf"));
    row("lone surrogate", "\xed\xb2\x80", escaped("\xed\xb2\x80"));
    row("pair of surrogates", "\xed\xa0\xbd\xed\xb8\x80", escaped("\xed\xa0\xbd\xed\xb8\x80"));
    row("beyond the last character", "\xf4\x90\x80\x80", escaped("\xf4\x90\x80\x80"));
    row("never in UTF-8", "\xf5\xfe\xff", escaped("\xf5\xfe\xff"));
}

void TestFileNameCodec::everyNameRoundTrips()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(QString::fromLocal8Bit(bytes.constData(), bytes.size()), text);
    QCOMPARE(text.toLocal8Bit(), bytes);
}

void TestFileNameCodec::everyPairOfBytesRoundTrips()
{
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const QByteArray bytes = QByteArray(1, char(first)) + char(second) + "\xa9";
            QCOMPARE(QString::fromLocal8Bit(bytes.constData(), bytes.size()).toLocal8Bit(), bytes);
        }
    }
}

void TestFileNameCodec::otherLoneSurrogatesAreReplaced()
{
    for (const ushort code : {0xD800, 0xDC00, 0xDC7F, 0xDD00}) {
        const QString lone = QLatin1Char('a') + QString(QChar(code)) + QChar(0xDC80);
        const QByteArray bytes = lone.toLocal8Bit();
        QVERIFY2(bytes.startsWith('a') && bytes.endsWith('\x80'), bytes.toHex().constData());
        QVERIFY(!bytes.contains('\xed'));
    }
}

void TestFileNameCodec::decodingInChunksGivesTheSameText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("valid") << QByteArray("a\xc3\xa9\xe6\x97\xa5\xf0\x9f\x98\x80z");
    QTest::newRow("with other bytes")
        << QByteArray("a\xe9\xe6\x97\xa5\xff\xf0\x9f\x98\x80\xf0\x9fz");
}

void TestFileNameCodec::decodingInChunksGivesTheSameText()
{
    QFETCH(QByteArray, bytes);
    const QTextCodec *codec = QTextCodec::codecForLocale();
    for (int size = 1; size < bytes.size(); ++size) {
        QTextCodec::ConverterState state;
        QString text;
        for (int i = 0; i < bytes.size(); i += size) {
            text += codec->toUnicode(bytes.constData() + i, qMin(size, bytes.size() - i), &state);
        }
        QCOMPARE(text, QFile::decodeName(bytes));
        QCOMPARE(state.remainingChars, 0);
    }
}

void TestFileNameCodec::encodingInChunksGivesTheSameBytes()
{
    QFETCH(QByteArray, bytes);
    const QString text = QFile::decodeName(bytes);
    const QTextCodec *codec = QTextCodec::codecForLocale();
    for (int size = 1; size < text.size(); ++size) {
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        QByteArray written;
        for (int i = 0; i < text.size(); i += size) {
            written +=
                codec->fromUnicode(text.constData() + i, qMin(size, text.size() - i), &state);
        }
        QCOMPARE(written, bytes);
    }
}

void TestFileNameCodec::filesAreCreatedListedAndPassedToPrograms_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"plain.mp4", "caf\xe9.mp4", "caf\xe9", "caf\xc3\xa9", "100%41.mp4",
                             "a?b#c;d", "\xed\xb2\x80", "\xef\xbf\xbd", "\xef\xbb\xbf"}) {
        QTest::newRow(QByteArray(name).toPercentEncoding().constData()) << QByteArray(name);
    }
}

void TestFileNameCodec::filesAreCreatedListedAndPassedToPrograms()
{
    QFETCH(QByteArray, name);
    const QTemporaryDir folder;
    QFile file(QDir(folder.path()).filePath(QFile::decodeName(name)));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QFile::decodeName(name)});
    QVERIFY(QFileInfo::exists(file.fileName()));
    QProcess list;
    list.start(QStringLiteral("basename"), {file.fileName()});
    QVERIFY(list.waitForFinished());
    QCOMPARE(list.readAllStandardOutput(), name + '\n');
}

void TestFileNameCodec::urlsReferToTheSameFile()
{
    QFETCH(QByteArray, name);
    const QString path = QStringLiteral("/folder/") + QFile::decodeName(name);
    QCOMPARE(localUrl(path).toEncoded(), "file:///folder/" + name.toPercentEncoding());
    QCOMPARE(localPath(localUrl(path)), path);
    // Qt's own dialogs give these.
    QCOMPARE(localPath(QUrl::fromLocalFile(path)), path);
}

QTEST_GUILESS_MAIN(TestFileNameCodec)
#include "tst_filenamecodec.moc"
