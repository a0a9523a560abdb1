#include "Command.h"

#include "Output.h"

using namespace Qt::StringLiterals;

namespace quorvane::cli {

std::optional<int> parse(QCommandLineParser &parser, const Command &command, const QStringList &arguments)
{
    parser.setApplicationDescription(command.description);
    const QCommandLineOption help = parser.addHelpOption();
    parser.addOptions(command.options());
    parser.addPositionalArgument(command.name, u"This command."_s, command.name);
    if (!command.arguments.isEmpty())
        parser.addPositionalArgument(u"arguments"_s, command.summary, command.arguments);
    if (!parser.parse(QStringList{u"quorvanectl"_s} + arguments)) {
        Output::error(u"quorvanectl %1: %2 (see quorvanectl %1 --help)"_s.arg(command.name, parser.errorText()));
        return usage;
    }
    if (parser.isSet(help)) {
        Output::line(parser.helpText().trimmed());
        return ok;
    }
    return std::nullopt;
}

QCommandLineOption jsonOption()
{
    return QCommandLineOption(u"json"_s, u"Print the result as one line of JSON."_s);
}

} // namespace quorvane::cli
