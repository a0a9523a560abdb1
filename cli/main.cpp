#include "BuildInfo.h"
#include "Command.h"
#include "HoursCommand.h"
#include "Output.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <array>

using namespace Qt::StringLiterals;
using quorvane::cli::Command;

namespace {

// Each new subcommand is one more row here.
const std::array<Command, 1> &commands()
{
    static const std::array<Command, 1> table{{
        {u"hours"_s, u"Print the weekly hours a typed sentence would set."_s, &quorvane::cli::HoursCommand::run},
    }};
    return table;
}

const Command *find(const QString &name)
{
    for (const Command &command : commands())
        if (command.name == name)
            return &command;
    return nullptr;
}

QString commandList()
{
    QStringList lines{u"Commands:"_s};
    for (const Command &command : commands())
        lines.append(u"  %1  %2"_s.arg(command.name.leftJustified(10), command.summary));
    return lines.join(u'\n');
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(u"quorvanectl"_s);
    QCoreApplication::setApplicationVersion(QString::fromLatin1(quorvane::build::version));

    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1 && !arguments.at(1).startsWith(u'-')) {
        if (const Command *command = find(arguments.at(1)))
            return command->run(arguments.mid(1));
        quorvane::cli::Output::error(u"quorvanectl: unknown command \"%1\"\n\n"_s.arg(arguments.at(1)) + commandList());
        return 2;
    }

    QCommandLineParser parser;
    parser.setApplicationDescription(u"The terminal companion of Quorvane.\n\n"_s + commandList());
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"command"_s, u"One of the commands above."_s, u"COMMAND [options]"_s);
    parser.process(app);
    parser.showHelp(2);
}
