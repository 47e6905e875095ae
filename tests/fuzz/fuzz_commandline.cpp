#include "host/commandline/commandline.h"
#include "host/commandline/fitting.h"
#include "tests/fuzz/fuzzing.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace {

struct Reader
{
    QString subcommand;
    QStringList options;
    std::unique_ptr<QCommandLineParser> parser;
};

std::vector<Reader> readersOfSubcommands()
{
    std::vector<Reader> readers;
    const QVector<Subcommand> all =
        catalogueCommands() + convertCommands() + presetCommands() + checkCommands();
    for (const Subcommand &subcommand : all) {
        Reader reader{subcommand.name, {}, std::make_unique<QCommandLineParser>()};
        for (const QCommandLineOption &option : subcommand.options) {
            require(reader.parser->addOption(option));
            reader.options << option.names().constFirst();
        }
        readers.push_back(std::move(reader));
    }
    return readers;
}

bool isFrom(const QStringList &words, const QStringList &arguments)
{
    return std::all_of(words.begin(), words.end(), [&arguments](const QString &word) {
        return std::any_of(arguments.begin(), arguments.end(),
                           [&word](const QString &argument) { return argument.endsWith(word); });
    });
}

} // namespace

/*! Parses one argument per line as the window and as a subcommand do. Nothing is run. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const std::vector<Reader> readers = readersOfSubcommands();
    const QStringList arguments =
        QString::fromUtf8(inputBytes(data, size)).split(QLatin1Char('\n'));
    if (const auto window = CommandLine::windowOptions(arguments)) {
        require(isFrom({window->configFolder, window->language}, arguments));
    }
    // One subcommand per input: all of them would make each input ten times slower.
    const Reader &reader = readers[size % readers.size()];
    const QStringList call = QStringList{reader.subcommand} + arguments;
    require(!CommandLine::windowOptions(call));
    if (reader.parser->parse(call)) {
        require(isFrom(reader.parser->positionalArguments(), arguments));
        for (const QString &option : reader.options) {
            require(isFrom(reader.parser->values(option), arguments));
        }
    }
    return 0;
}
