#ifndef TESTS_FORMATS_PARSERS_PARSERFIXTURE_H
#define TESTS_FORMATS_PARSERS_PARSERFIXTURE_H

#include "formats/models/formatlistmodel.h"
#include "formats/parsers/iformatsparser.h"
#include "tests/formats/fakecatalogue.h"
#include "tests/formats/models/modelobservers.h"
#include "tests/formats/models/presetsamples.h"
#include "tests/support/messagelog.h"

#include <QtTest>

/*! What one parser test needs: models to fill, files to read, an empty catalogue and the log. */
class ParserFixture
{
    Q_DISABLE_COPY(ParserFixture)

public:
    ParserFixture()
    {
        FormatDetailModel::s_userDefineId = 1000;
        FakeCatalogue::served() = FakeCatalogue();
        guard(formats);
        guard(recently);
    }

    /*! Writes a file of this name and returns its path. */
    QString write(const QByteArray &bytes, const QString &name = QStringLiteral("presets.json"))
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write %s", qPrintable(file.fileName()));
        }
        return file.fileName();
    }

    QString folder() const { return m_folder.path(); }

    /*! Calls one of the operations that read a file, by name. */
    bool parse(IFormatsParser &parser, const QString &operation, const QString &path,
               bool flag = true)
    {
        if (operation == QLatin1String("parseRecently")) {
            return parser.parseRecently(path, &recently, flag);
        }
        if (operation == QLatin1String("parseAudio")) {
            return parser.parseAudio(path, &formats, flag);
        }
        if (operation == QLatin1String("parseDevice")) {
            return parser.parseDevice(path, &formats, flag);
        }
        return parser.parseVideo(path, &formats, flag);
    }

    /*! A list's presets, as fields. */
    static QVariantList presetsOf(const FormatDetailModel &model)
    {
        QQueue<FormatDetailModelData> presets;
        model.getModelInfo(presets);
        QVariantList list;
        for (const FormatDetailModelData &preset : qAsConst(presets)) {
            list.append(fieldsOf(preset));
        }
        return list;
    }

    /*! The preset in this row of the format's list; a default one where there is none. */
    FormatDetailModelData preset(const QString &title, int row) const
    {
        FormatDetailModelData read;
        if (const FormatDetailModel *presets = formats.formatDetailModel(title)) {
            presets->getModelInfoByIndex(row, read);
        }
        return read;
    }

    /*! All that both models hold, as lines: every row with every field of its presets. */
    QStringList dump() const
    {
        QQueue<FormatListModelData> rows;
        formats.getModelInfo(rows);
        QVariantList list;
        for (const FormatListModelData &row : qAsConst(rows)) {
            const FormatDetailModel *presets = formats.formatDetailModel(row.title);
            QVariantMap format = row.toVarMap();
            format.insert(QStringLiteral("presets"), presets ? presetsOf(*presets) : QVariant());
            list.append(format);
        }
        return asLines(QVariantMap{{QStringLiteral("formats"), list},
                                   {QStringLiteral("recently"), presetsOf(recently)}});
    }

    MessageLog log;
    FormatListModel formats;
    FormatDetailModel recently;

private:
    QTemporaryDir m_folder;
};

/*! A row with the path of each pair "name.in.json" and "name.out.json" in a folder of data/. */
inline void addGoldenRows(const QString &folder)
{
    QTest::addColumn<QString>("path");
    const QDir data(QFINDTESTDATA(QStringLiteral("data/") + folder));
    const QStringList files = data.entryList({QStringLiteral("*.in.json")});
    QVERIFY(!files.isEmpty());
    for (const QString &file : files) {
        const QString name = file.chopped(int(qstrlen(".in.json")));
        QTest::newRow(qPrintable(name)) << data.filePath(name);
    }
}

/*!
 * Reads path.in.json into models that know the format "MP4" already and compares all that they
 * hold then with path.out.json.
 */
inline void compareWithGolden(ParserFixture &fixture, IFormatsParser &parser,
                              const QString &operation, const QString &path)
{
    fixture.formats.addModeInfo(
        {QStringLiteral("MP4"), QStringLiteral("catalogue.png"), QStringLiteral("video")});
    QVERIFY(fixture.parse(parser, operation, path + QStringLiteral(".in.json")));
    QFile golden(path + QStringLiteral(".out.json"));
    QVERIFY(golden.open(QIODevice::ReadOnly));
    QCOMPARE(fixture.dump(), asLines(QJsonDocument::fromJson(golden.readAll()).toVariant()));
}

/*! A row for each operation with each kind of file that holds bytes, but no list to read. */
inline void addFilesWithoutAList(const QStringList &operations)
{
    constexpr int deep = 100000;
    const QByteArray brackets = QByteArray(deep, '[') + QByteArray(deep, ']');
    const QByteArray braces = QByteArray("{\"a\":").repeated(deep) + '0' + QByteArray(deep, '}');
    const QPair<const char *, QByteArray> files[] = {
        {"blanks", " \n\t"},
        {"no JSON", "recently used"},
        {"an object", "{\"title\": \"MKV\", \"group\": []}"},
        {"a text", "\"MKV\""},
        {"a number", "5"},
        {"null", "null"},
        {"an empty list", "[]"},
        {"an empty list among blanks", " [ ]\n"},
        {"an empty list in a map", "{\"a\": []}"},
        {"cut off in a text", "[{\"title\": \"MK"},
        {"cut off in a list", "[{\"title\": \"MKV\"}"},
        {"cut off in an entry", "[{\"title\": \"MKV\", \"group\": [{\"outPutNode\": {\"a\": 1}}"},
        {"a comma too many", "[{\"title\": \"MKV\"},]"},
        {"single quotes", "[{'title': 'MKV'}]"},
        {"a comment", "[{\"title\": \"MKV\"}] // mine"},
        {"two lists", "[{\"title\": \"MKV\"}][{}]"},
        {"NUL bytes", QByteArray(64, '\0')},
        {"a NUL byte behind the list", QByteArray("[{\"title\": \"MKV\"}]") + '\0'},
        {"a NUL byte between values", QByteArray("[{\"title\":") + '\0' + "\"MKV\"}]"},
        {"no UTF-8", "[{\"title\": \"MK\xff\"}]"},
        {"half a UTF-8 character", "[{\"title\": \"MK\xc3\"}]"},
        {"a surrogate as UTF-8", "[{\"title\": \"MK\xed\xa0\x80\"}]"},
        {"UTF-16", QByteArray("\xff\xfe[") + '\0' + ']' + '\0'},
        {"100,000 lists in each other", brackets},
        {"100,000 open lists", QByteArray(deep, '[')},
        {"100,000 objects in each other", '[' + braces + ']'},
        {"an entry of 100,000 lists", "[{\"outPutNode\": {\"a\": " + brackets + "}}]"},
    };
    QTest::addColumn<QString>("operation");
    QTest::addColumn<QByteArray>("bytes");
    for (const QString &operation : operations) {
        for (const auto &[name, bytes] : files) {
            QTest::addRow("%s, %s", qPrintable(operation), name) << operation << bytes;
        }
    }
}

/*! The operation that a failure is logged for. */
inline QString loggedOperation(const QString &operation)
{
    return operation == QLatin1String("parseDevice") ? QStringLiteral("parseVideo") : operation;
}

/*! Puts presets into both models and checks that a failed reading logs one line, no more. */
inline void compareRefusal(ParserFixture &fixture, IFormatsParser &parser, const QString &operation,
                           const QString &path, const QString &reason)
{
    fixture.formats.addModeInfo({QStringLiteral("MP4"), QString(), QStringLiteral("video")});
    fixture.formats.formatDetailModel(QStringLiteral("MP4"))->addModeInfo(samplePreset());
    fixture.recently.addModeInfo(samplePreset());
    const QStringList before = fixture.dump();

    QVERIFY(!fixture.parse(parser, operation, path));
    QCOMPARE(fixture.log.takeAll(),
             QStringList({QStringLiteral("debug: ") + loggedOperation(operation) +
                          QLatin1Char(' ') + reason}));
    QCOMPARE(fixture.dump(), before);
}

#endif
