#ifndef TESTS_FORMATS_PARSERS_PARSERFIXTURE_H
#define TESTS_FORMATS_PARSERS_PARSERFIXTURE_H

#include "formats/models/formatlistmodel.h"
#include "formats/parsers/iformatsparser.h"
#include "tests/formats/fakecatalogue.h"
#include "tests/formats/models/modelobservers.h"
#include "tests/formats/models/presetsamples.h"
#include "tests/support/messagelog.h"

#include <QtTest>

/*! What a parser test needs: models to fill, files to read, an empty catalogue and the log. */
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

    /*! Calls one of the file operations by name. */
    bool parse(IFormatsParser &parser, const QString &operation, const QString &path,
               bool flag = true)
    {
        return parseInto(&formats, &recently, parser, operation, path, flag);
    }

    /*! Likewise with other models, which can be null. */
    static bool parseInto(FormatListModel *formats, FormatDetailModel *recently,
                          IFormatsParser &parser, const QString &operation, const QString &path,
                          bool flag)
    {
        if (operation == QLatin1String("parseRecently")) {
            return parser.parseRecently(path, recently, flag);
        }
        if (operation == QLatin1String("parseAudio")) {
            return parser.parseAudio(path, formats, flag);
        }
        if (operation == QLatin1String("parseDevice")) {
            return parser.parseDevice(path, formats, flag);
        }
        return parser.parseVideo(path, formats, flag);
    }

    /*! The fields of each preset in a list. */
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

    /*! The preset in this row of the format's list; a default one if there is none. */
    FormatDetailModelData preset(const QString &title, int row) const
    {
        FormatDetailModelData read;
        if (const FormatDetailModel *presets = formats.formatDetailModel(title)) {
            presets->getModelInfoByIndex(row, read);
        }
        return read;
    }

    /*! The contents of both models, as lines: every row with every field of its presets. */
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

#endif
