#include "host/commandline/options.h"

#include "host/commandline/commandline.h"
#include "host/commandline/nearestword.h"

#include <QDir>
#include <QFile>
#include <QSettings>

#include <algorithm>

namespace {

/*! The options that mean the same for every run, and can have a default. */
const QStringList &optionsWithDefault()
{
    static const QStringList names =
        QStringLiteral("preset to name recursive mirror if-exists jobs audio subtitles keep-dates "
                       "average quiet")
            .split(QLatin1Char(' '));
    return names;
}

QByteArray variableOf(const QString &option)
{
    QByteArray name = "VEXCONVERT_" + option.toLatin1().toUpper();
    return name.replace('-', '_');
}

/*! Checks the value of a flag. \a origin is where it comes from. */
Result<> checkFlag(const QString &text, const QString &origin)
{
    if (text == QLatin1String("true") || text == QLatin1String("false")) {
        return {};
    }
    return wrongUsage(CommandLine::tr("%1 is \"%2\"; it must be true or false").arg(origin, text));
}

/*! The values in the file of defaults, by the options' names. */
Result<QHash<QString, QString>> readFile(const QString &path)
{
    QHash<QString, QString> values;
    const QSettings file(path, QSettings::IniFormat);
    if (file.status() != QSettings::NoError ||
        (QFile::exists(path) && !QFile(path).open(QIODevice::ReadOnly))) {
        return failed(
            CommandLine::tr("can't read the defaults in %1; write lines such as \"jobs=2\""
                            " into it")
                .arg(QDir::toNativeSeparators(path)));
    }
    const QStringList keys = file.allKeys();
    for (const QString &key : keys) {
        if (!optionsWithDefault().contains(key)) {
            return wrongUsage(CommandLine::tr("%1: \"%2\" is no option with a default%3")
                                  .arg(QDir::toNativeSeparators(path), key,
                                       didYouMean(key, optionsWithDefault())));
        }
        if (file.value(key).type() == QVariant::StringList) {
            return wrongUsage(
                CommandLine::tr("%1: the value of \"%2\" has a comma; put it into quotes")
                    .arg(QDir::toNativeSeparators(path), key));
        }
        values.insert(key, file.value(key).toString());
    }
    return values;
}

} // namespace

Result<Options> Options::withDefaults(const QCommandLineParser &parser,
                                      const QList<QCommandLineOption> &options,
                                      const QString &folder)
{
    Options made(parser);
    const bool haveDefaults =
        std::any_of(options.begin(), options.end(), [](const QCommandLineOption &option) {
            return optionsWithDefault().contains(option.names().constLast());
        });
    if (!haveDefaults) {
        return made;
    }
    const QString path = QDir(folder).filePath(QStringLiteral("config.ini"));
    const Result<QHash<QString, QString>> fromFile = readFile(path);
    if (!fromFile) {
        return failed(fromFile);
    }
    for (const QCommandLineOption &option : options) {
        const QString name = option.names().constLast();
        if (!optionsWithDefault().contains(name)) {
            continue;
        }
        const QByteArray variable = variableOf(name);
        const bool isInEnvironment = qEnvironmentVariableIsSet(variable.constData());
        if (!isInEnvironment && !fromFile->contains(name)) {
            continue;
        }
        const QString value = isInEnvironment ? QFile::decodeName(qgetenv(variable.constData()))
                                              : fromFile->value(name);
        if (option.valueName().isEmpty()) {
            const Result<> checked =
                checkFlag(value, isInEnvironment ? QString::fromLatin1(variable)
                                                 : QStringLiteral("%1: %2").arg(path, name));
            if (!checked) {
                return failed(checked);
            }
        }
        made.m_defaults.insert(name, value);
    }
    return made;
}

bool Options::isSet(const QString &name) const
{
    return m_parser->isSet(name) ||
           (m_defaults.contains(name) && m_defaults.value(name) != QLatin1String("false"));
}

QString Options::value(const QString &name) const
{
    return m_parser->isSet(name) ? m_parser->value(name) : m_defaults.value(name);
}

QString configFolderOfEnvironment()
{
    return QFile::decodeName(qgetenv("VEXCONVERT_CONFIG"));
}
