#ifndef TESTS_FORMATS_PARSERS_PARSERTEST_H
#define TESTS_FORMATS_PARSERS_PARSERTEST_H

#include "tests/formats/parsers/parserfixture.h"

#include <QPointer>

#include <memory>
#include <optional>

/*! Files that aren't empty but hold no list to read: a description and the content of each. */
inline QVector<QPair<const char *, QByteArray>> filesWithoutAList()
{
    constexpr int deep = 100000;
    const QByteArray brackets = QByteArray(deep, '[') + QByteArray(deep, ']');
    const QByteArray braces = QByteArray("{\"a\":").repeated(deep) + '0' + QByteArray(deep, '}');
    return {
        {"blanks", " \n\t"},
        {"not JSON", "recently used"},
        {"an object", "{\"title\": \"MKV\", \"group\": []}"},
        {"a string", "\"MKV\""},
        {"a number", "5"},
        {"null", "null"},
        {"an empty list", "[]"},
        {"an empty list among blanks", " [ ]\n"},
        {"an empty list in a map", "{\"a\": []}"},
        {"cut off in a string", "[{\"title\": \"MK"},
        {"cut off in a list", "[{\"title\": \"MKV\"}"},
        {"cut off in an entry", "[{\"title\": \"MKV\", \"group\": [{\"outPutNode\": {\"a\": 1}}"},
        {"a trailing comma", "[{\"title\": \"MKV\"},]"},
        {"single quotes", "[{'title': 'MKV'}]"},
        {"a comment", "[{\"title\": \"MKV\"}] // mine"},
        {"two lists", "[{\"title\": \"MKV\"}][{}]"},
        {"NUL bytes", QByteArray(64, '\0')},
        {"a NUL byte after the list", QByteArray("[{\"title\": \"MKV\"}]") + '\0'},
        {"a NUL byte between values", QByteArray("[{\"title\":") + '\0' + "\"MKV\"}]"},
        {"invalid UTF-8", "[{\"title\": \"MK\xff\"}]"},
        {"half a UTF-8 character", "[{\"title\": \"MK\xc3\"}]"},
        {"a surrogate as UTF-8", "[{\"title\": \"MK\xed\xa0\x80\"}]"},
        {"UTF-16", QByteArray("\xff\xfe[") + '\0' + ']' + '\0'},
        {"100,000 nested lists", brackets},
        {"100,000 open lists", QByteArray(deep, '[')},
        {"100,000 nested objects", '[' + braces + ']'},
        {"an entry of 100,000 lists", "[{\"outPutNode\": {\"a\": " + brackets + "}}]"},
    };
}

/*!
 * The rules of every parser. Each test function gets new models, an empty catalogue and an empty
 * folder, and fails on a log line that it did not expect.
 */
class ParserTest : public QObject
{
    Q_OBJECT

protected:
    virtual IFormatsParser &parser() = 0;
    [[nodiscard]] virtual QObject *newParser(QObject *parent) const = 0;
    /*! The parser's folder of data/. */
    [[nodiscard]] virtual QString dataFolder() const = 0;
    /*! The operations that read a file. */
    [[nodiscard]] virtual QStringList operations() const
    {
        return {QStringLiteral("parseVideo"), QStringLiteral("parseAudio"),
                QStringLiteral("parseDevice")};
    }
    /*! An entry that each of the operations turns into one preset. */
    [[nodiscard]] virtual QByteArray entry() const = 0;

    /*! Adds a row with the path of each pair "name.in.json" and "name.out.json" in the folder. */
    void addGoldenRows(const QString &folder) const
    {
        QTest::addColumn<QString>("path");
        const QDir data(QFINDTESTDATA(QStringLiteral("data/%1/%2").arg(dataFolder(), folder)));
        const QStringList files = data.entryList({QStringLiteral("*.in.json")});
        QVERIFY(!files.isEmpty());
        for (const QString &file : files) {
            const QString name = file.chopped(int(qstrlen(".in.json")));
            QTest::newRow(qPrintable(name)) << data.filePath(name);
        }
    }

    /*!
     * Reads path.in.json into models that already have the format "MP4" and compares their contents
     * with path.out.json.
     */
    void compareWithGolden(const QString &operation, const QString &path)
    {
        m_fixture->formats.addModeInfo(
            {QStringLiteral("MP4"), QStringLiteral("catalogue.png"), QStringLiteral("video")});
        QVERIFY(m_fixture->parse(parser(), operation, path + QStringLiteral(".in.json")));
        QFile golden(path + QStringLiteral(".out.json"));
        QVERIFY(golden.open(QIODevice::ReadOnly));
        QCOMPARE(m_fixture->dump(), asLines(QJsonDocument::fromJson(golden.readAll()).toVariant()));
    }

    std::optional<ParserFixture> m_fixture;

private:
    // Puts presets into both models and checks that a failed read only logs one line.
    void compareRefusal(const QString &operation, const QString &path, const QString &reason)
    {
        m_fixture->formats.addModeInfo({QStringLiteral("MP4"), QString(), QStringLiteral("video")});
        m_fixture->formats.formatDetailModel(QStringLiteral("MP4"))->addModeInfo(samplePreset());
        m_fixture->recently.addModeInfo(samplePreset());
        const QStringList before = m_fixture->dump();

        QVERIFY(!m_fixture->parse(parser(), operation, path));
        const QString logged =
            operation == QLatin1String("parseDevice") ? QStringLiteral("parseVideo") : operation;
        QCOMPARE(m_fixture->log.takeAll(),
                 QStringList({QStringLiteral("debug: %1 %2").arg(logged, reason)}));
        QCOMPARE(m_fixture->dump(), before);
    }

    void addOperationRows() const
    {
        QTest::addColumn<QString>("operation");
        for (const QString &operation : operations()) {
            QTest::newRow(qPrintable(operation)) << operation;
        }
    }

private Q_SLOTS:
    void init() { m_fixture.emplace(); }

    void cleanup()
    {
        QCOMPARE(m_fixture->log.takeAll(), QStringList());
        m_fixture.reset();
    }

    void theParserBelongsToItsParent()
    {
        auto parent = std::make_unique<QObject>();
        const QPointer<QObject> owned = newParser(parent.get());
        QCOMPARE(owned->parent(), parent.get());
        parent.reset();
        QVERIFY(!owned);
        QCOMPARE(std::unique_ptr<QObject>(newParser(nullptr))->parent(), nullptr);
    }

    void theParserIsDeletedThroughItsInterface()
    {
        const QPointer<QObject> watched = newParser(nullptr);
        QCOMPARE(dynamic_cast<void *>(watched.data()), static_cast<void *>(watched.data()));
        std::unique_ptr<IFormatsParser> owner(dynamic_cast<IFormatsParser *>(watched.data()));
        QVERIFY(owner);
        owner.reset();
        QVERIFY(!watched);
    }

    void theParserHasNoMetaObjectOfItsOwn()
    {
        const std::unique_ptr<QObject> parser(newParser(nullptr));
        QCOMPARE(parser->metaObject(), &QObject::staticMetaObject);
    }

    void presetFilesAreRead_data() { addGoldenRows(QStringLiteral("parsevideo")); }
    void presetFilesAreRead()
    {
        QFETCH(QString, path);
        compareWithGolden(QStringLiteral("parseVideo"), path);
    }

    void audioListsAreRead_data() { addGoldenRows(QStringLiteral("parseaudio")); }
    void audioListsAreRead()
    {
        QFETCH(QString, path);
        compareWithGolden(QStringLiteral("parseAudio"), path);
    }

    void theFlagIsStoredInEveryPresetButADevices_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<bool>("flag");
        for (const QString &operation : operations()) {
            for (const bool flag : {true, false}) {
                QTest::addRow("%s, %s", qPrintable(operation), flag ? "true" : "false")
                    << operation << flag;
            }
        }
    }

    void theFlagIsStoredInEveryPresetButADevices()
    {
        QFETCH(QString, operation);
        QFETCH(bool, flag);
        const QByteArray entries = '[' + entry() + ',' + entry() + ']';
        const bool isRecently = operation == QLatin1String("parseRecently");
        const QString path = m_fixture->write(
            isRecently ? entries : "[{\"title\": \"MP4\", \"group\": " + entries + "}]");
        QVERIFY(m_fixture->parse(parser(), operation, path, flag));
        const FormatDetailModel &presets =
            isRecently ? m_fixture->recently
                       : *m_fixture->formats.formatDetailModel(QStringLiteral("MP4"));
        QCOMPARE(presets.rowCount(), 2);
        const bool userDefine = flag && operation != QLatin1String("parseDevice");
        QCOMPARE(presets.userDefineCount(), userDefine ? 2 : 0);
    }

    void withoutModelOrPathNothingIsLogged_data() { addOperationRows(); }
    void withoutModelOrPathNothingIsLogged()
    {
        QFETCH(QString, operation);
        const QString path = m_fixture->write('[' + entry() + ']');
        QVERIFY(!ParserFixture::parseInto(nullptr, nullptr, parser(), operation, path, true));
        const QStringList before = m_fixture->dump();
        QVERIFY(!m_fixture->parse(parser(), operation, QString()));
        QVERIFY(!m_fixture->parse(parser(), operation, QStringLiteral("")));
        QCOMPARE(m_fixture->dump(), before);
    }

    void aFileThatCannotBeOpenedIsReported_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QString>("name");
        for (const QString &operation : operations()) {
            const QPair<const char *, const char *> names[] = {
                {"a missing file", "/missing.json"},
                {"a missing folder", "/missing/presets.json"},
                {"a name with a blank", "/my presets.json"},
                {"a folder", ""},
            };
            for (const auto &[kind, name] : names) {
                QTest::addRow("%s, %s", qPrintable(operation), kind)
                    << operation << QString::fromLatin1(name);
            }
        }
    }

    void aFileThatCannotBeOpenedIsReported()
    {
        QFETCH(QString, operation);
        QFETCH(QString, name);
        const bool isArrowed =
            operation == QLatin1String("parseVideo") || operation == QLatin1String("parseDevice");
        const QString path = m_fixture->folder() + name;
        compareRefusal(operation, path,
                       QStringLiteral("%1open formats file failed, path= \"%2\"")
                           .arg(QLatin1String(isArrowed ? "-->" : ""), path));
    }

    void anEmptyFileIsReported_data() { addOperationRows(); }
    void anEmptyFileIsReported()
    {
        QFETCH(QString, operation);
        compareRefusal(operation, m_fixture->write(QByteArray()),
                       QStringLiteral("-->strJson is empty!"));
    }

    void aFileWithoutAListIsReported_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::addColumn<QByteArray>("bytes");
        const auto files = filesWithoutAList();
        for (const QString &operation : operations()) {
            for (const auto &[kind, bytes] : files) {
                QTest::addRow("%s, %s", qPrintable(operation), kind) << operation << bytes;
            }
        }
    }

    void aFileWithoutAListIsReported()
    {
        QFETCH(QString, operation);
        QFETCH(QByteArray, bytes);
        compareRefusal(operation, m_fixture->write(bytes), QStringLiteral("-->varJson is null!"));
    }
};

#endif
