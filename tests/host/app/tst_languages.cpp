#include "host/app/languages.h"

#include "host/presets/presetstore.h"

#include "formats/models/formatdetailmodel.h"
#include "formats/proxy/formatsproxy.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

/*! What every test over the compiled-in catalogues needs, from outside of any namespace. */
static void initTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace {

/*! The keys that the QML files under this folder of the sources translate. */
QSet<QString> keysIn(const QString &folder)
{
    static const QRegularExpression call(
        QStringLiteral("ToolFun\\.tr\\(\\s*\"((?:[^\"\\\\]|\\\\.)*)\""));
    // The keys of a choice: tr(condition ? "one" : "other").
    static const QRegularExpression choice(
        QStringLiteral("ToolFun\\.tr\\([^\"()]*\\?\\s*\"([^\"]*)\"\\s*:\\s*\"([^\"]*)\""));
    QSet<QString> keys;
    QDirIterator files(QStringLiteral(VEX_SOURCES "/") + folder, {QStringLiteral("*.qml")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly)) {
            return {};
        }
        const QString text = QString::fromUtf8(file.readAll());
        for (auto match = call.globalMatch(text); match.hasNext();) {
            keys.insert(match.next().captured(1));
        }
        for (auto match = choice.globalMatch(text); match.hasNext();) {
            const QRegularExpressionMatch found = match.next();
            keys << found.captured(1) << found.captured(2);
        }
    }
    return keys;
}

/*! The titles of the catalogue's presets. */
QSet<QString> presetTitles()
{
    QTemporaryDir folder;
    PresetStore store(*FormatsProxy::getInstance(), folder.path());
    if (!store.open(PresetStore::ReadOnly)) {
        return {};
    }
    QSet<QString> titles;
    const FormatListModel &formats = *store.formats().formatListModel();
    for (int row = 0; row < formats.rowCount(); ++row) {
        const FormatDetailModel &presets = *formats.formatDetailModel(formats.getTitle(row));
        for (int preset = 0; preset < presets.rowCount(); ++preset) {
            titles.insert(
                presets.data(presets.index(preset), FormatDetailModel::TitleRole).toString());
        }
    }
    return titles;
}

/*! Whether a title is made of names and numbers alone, the same in every language. */
bool isName(const QString &title)
{
    static const QSet<QString> words = {
        QStringLiteral("Same"),   QStringLiteral("Quality"),  QStringLiteral("Voice"),
        QStringLiteral("Square"), QStringLiteral("Portrait"), QStringLiteral("Lossless"),
        QStringLiteral("bit"),    QStringLiteral("Surround"), QStringLiteral("Wideband"),
    };
    const QStringList parts = title.split(QLatin1Char(' '));
    return std::none_of(parts.begin(), parts.end(),
                        [](const QString &word) { return words.contains(word); });
}

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { initTranslations(); }
    void everyKeyIsTranslated_data();
    void everyKeyIsTranslated();
    void chineseAndJapaneseHaveGlyphsOfTheirOwn();
    void everyFindingOfAnImportIsTranslated_data();
    void everyFindingOfAnImportIsTranslated();
    void placeHoldersAreKept_data();
    void placeHoldersAreKept();
    void aLocaleFindsItsLanguage_data();
    void aLocaleFindsItsLanguage();
};

void TestLanguages::everyKeyIsTranslated_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : Languages::all()) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void TestLanguages::everyKeyIsTranslated()
{
    QFETCH(QString, language);
    QTranslator catalogue;
    QVERIFY(catalogue.load(QStringLiteral(":/translations/vex_") + language));

    QSet<QString> keys = keysIn(QStringLiteral("formats/qml"));
    QVERIFY(keys.contains(QStringLiteral("Format search")));
    keys += keysIn(QStringLiteral("host/qml"));
    QVERIFY(keys.contains(QStringLiteral("Convert All")));
    // Those that are put together at run time.
    keys += {QStringLiteral("video"),
             QStringLiteral("audio"),
             QStringLiteral("device"),
             QStringLiteral("socialVideo"),
             QStringLiteral("recently"),
             QStringLiteral("High Quality"),
             QStringLiteral("Default"),
             QStringLiteral("Low Quality"),
             QStringLiteral("Encoder"),
             QStringLiteral("Frame Rate"),
             QStringLiteral("Resolution"),
             QStringLiteral("Bitrate"),
             QStringLiteral("Channel"),
             QStringLiteral("Sample Rate"),
             QStringLiteral("Keep Orignal"),
             QStringLiteral("Smart Fit"),
             QStringLiteral("Choose folder"),
             QStringLiteral("Add folder"),
             QStringLiteral("Add a number"),
             QStringLiteral("Ask"),
             QStringLiteral("Skip the file"),
             QStringLiteral("Replace the file"),
             QStringLiteral("Holidays"),
             QStringLiteral("A name has no \"/\"; choose the folder in \"Save to\""),
             QStringLiteral("There is no field {%1}; use %2"),
             QStringLiteral("was there already"),
             QStringLiteral("ffmpeg hasn't run for this file yet"),
             QStringLiteral("Add files"),
             QStringLiteral("All files"),
             QStringLiteral("Video and audio files"),
             QStringLiteral("VexConvert can't open its window"),
             QStringLiteral("%1 % smaller"),
             QStringLiteral("%1 % larger"),
             QStringLiteral("%1 of %2"),
             QStringLiteral("Paused"),
             QStringLiteral("%1 is a picture; add video or audio files"),
             QStringLiteral("%1 is a playlist; add the files that it names instead"),
             QStringLiteral("%1 is not on this computer; download it first and add the file"),
             QStringLiteral("There is no file %1 any more; convert it again"),
             QStringLiteral("No player could be started for %1; open it by hand"),
             QStringLiteral("%1 files"),
             QStringLiteral("Already in the list: %1"),
             QStringLiteral("Add again"),
             QStringLiteral("Removed: %1"),
             QStringLiteral("Undo"),
             QStringLiteral("No preset was imported."),
             QStringLiteral("Converted already: %1"),
             QStringLiteral("Convert again"),
             QStringLiteral(
                 "VexConvert was closed while it converted; Convert All goes on with what is left"),
             QStringLiteral("at most %1"),
             QStringLiteral("about %1"),
             QStringLiteral("Files converted: %1"),
             QStringLiteral("failed: %1"),
             QStringLiteral(", "),
             QStringLiteral("mono"),
             QStringLiteral("stereo"),
             QStringLiteral("There are no video or audio files in the folder %1; add the files "
                            "themselves"),
             QStringLiteral("No file manager could be started to show the folder %1; open it by "
                            "hand")};
    for (const QString &title : presetTitles()) {
        if (!isName(title)) {
            keys.insert(title);
        }
    }
    QStringList missing;
    for (const QString &key : qAsConst(keys)) {
        if (catalogue.translate("Vex", key.toUtf8().constData()).isEmpty()) {
            missing << key;
        }
    }
    QCOMPARE(missing, QStringList());
}

void TestLanguages::chineseAndJapaneseHaveGlyphsOfTheirOwn()
{
    const auto asked = [](const char *language) {
        qputenv("FC_LANG", "the system's");
        Languages::chooseGlyphs(QLatin1String(language));
        return qgetenv("FC_LANG");
    };
    QCOMPARE(asked("zh"), QByteArray("zh-cn"));
    QCOMPARE(asked("ja"), QByteArray("ja"));
    QCOMPARE(asked("de"), QByteArray("the system's"));
    qunsetenv("FC_LANG");
}

void TestLanguages::everyFindingOfAnImportIsTranslated_data()
{
    everyKeyIsTranslated_data();
}

void TestLanguages::everyFindingOfAnImportIsTranslated()
{
    QFETCH(QString, language);
    QTranslator catalogue;
    QVERIFY(catalogue.load(QStringLiteral(":/translations/vex_") + language));
    static const QRegularExpression contextForm(
        QStringLiteral("Q_DECLARE_TR_FUNCTIONS\\((\\w+)\\)"));
    static const QRegularExpression textForm(QStringLiteral(
        "(?:Texts::tr\\(|NOOP\\(\\s*\"\\w+\",)\\s*((?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)"));
    // One text over several lines of the source.
    static const QRegularExpression seam(QStringLiteral("\"\\s*\""));
    int count = 0;
    QStringList missing;
    QDirIterator files(QStringLiteral(VEX_SOURCES "/host/presets/exchange"),
                       {QStringLiteral("*.cpp")}, QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString code = QString::fromUtf8(file.readAll());
        const QString context = contextForm.match(code).captured(1);
        for (auto match = textForm.globalMatch(code); match.hasNext(); ++count) {
            QString text = match.next().captured(1).trimmed();
            text = text.mid(1, text.size() - 2).remove(seam);
            text.replace(QStringLiteral("\\\""), QStringLiteral("\""));
            if (catalogue.translate(context.toUtf8().constData(), text.toUtf8().constData())
                    .isEmpty()) {
                missing << text;
            }
        }
    }
    QVERIFY(count > 50);
    // English needs words of its own only where the window has other ways than the command line.
    if (language == QLatin1String("en")) {
        const QStringList all = missing;
        missing = all.filter(QStringLiteral("\"convert "));
    }
    QCOMPARE(missing, QStringList());
}

void TestLanguages::placeHoldersAreKept_data()
{
    everyKeyIsTranslated_data();
}

void TestLanguages::placeHoldersAreKept()
{
    QFETCH(QString, language);
    QFile file(QStringLiteral(VEX_SOURCES "/host/translations/vex_%1.ts").arg(language));
    QVERIFY(file.open(QIODevice::ReadOnly));
    static const QRegularExpression message(
        QStringLiteral("<source>([^<]*)</source>\\s*<translation>([^<]*)</translation>"));
    // "%L1" is a number as the language writes it.
    static const QRegularExpression placeHolder(QStringLiteral("%L?(\\d)"));
    const auto placeHoldersOf = [](const QString &text) {
        QStringList found;
        for (auto match = placeHolder.globalMatch(text); match.hasNext();) {
            found << match.next().captured(1);
        }
        found.sort();
        return found;
    };
    int count = 0;
    const QString text = QString::fromUtf8(file.readAll());
    for (auto match = message.globalMatch(text); match.hasNext(); ++count) {
        const QRegularExpressionMatch found = match.next();
        QCOMPARE(placeHoldersOf(found.captured(2)), placeHoldersOf(found.captured(1)));
    }
    QCOMPARE(count, text.count(QStringLiteral("<source>")));
}

void TestLanguages::aLocaleFindsItsLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("language");
    const auto row = [](const char *locale, const char *language) {
        QTest::newRow(locale) << QString::fromLatin1(locale) << QString::fromLatin1(language);
    };
    row("de", "de");
    row("de_AT", "de");
    row("zh-Hans-CN", "zh");
    row("JA", "ja");
    row("den", "");
    row("it", "");
    row("", "");
}

void TestLanguages::aLocaleFindsItsLanguage()
{
    QFETCH(QString, locale);
    QTEST(Languages::suiting(locale), "language");
}

QTEST_GUILESS_MAIN(TestLanguages)
#include "tst_languages.moc"
