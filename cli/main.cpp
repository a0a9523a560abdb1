#include "AgendaCommand.h"
#include "BuildInfo.h"
#include "Command.h"
#include "Completion.h"
#include "HoursCommand.h"
#include "ManPage.h"
#include "NextCommand.h"
#include "OpenCommand.h"
#include "Output.h"
#include "ShareCommand.h"

#include <QCommandLineParser>
#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace quorvane;
using quorvane::cli::Command;

namespace {

// Each subcommand is one row here; --help, the manual and the completion read it.
const QList<const Command *> &commands()
{
    static const QList<const Command *> table{
        &cli::NextCommand::command(), &cli::AgendaCommand::command(), &cli::ShareCommand::command(),
        &cli::OpenCommand::open(),    &cli::OpenCommand::join(),      &cli::HoursCommand::command(),
    };
    return table;
}

const Command *find(const QString &name)
{
    for (const Command *command : commands())
        if (command->name == name)
            return command;
    return nullptr;
}

QString commandList()
{
    QStringList lines{u"Commands:"_s};
    for (const Command *command : commands())
        lines.append(u"  %1  %2"_s.arg(command->name.leftJustified(10), command->summary));
    return lines.join(u'\n');
}

const QString exitStatus = u"  0  Done.\n"
                           "  1  It failed; the reason is on standard error.\n"
                           "  2  A mistake on the command line.\n"
                           "  3  Not signed in: Quorvane has no account on this computer, or no saved data yet.\n"
                           "  4  Quorvane is offline or not running, and saved data was shown."_s;

QString manual()
{
    ManPage::Page page;
    page.name = u"quorvanectl"_s;
    page.summary = u"the terminal companion of Quorvane"_s;
    page.description =
        u"quorvanectl shows the next meeting and the day's bookings in a terminal or a status bar, offers open "
        "times in a message, and asks the running Quorvane to open its windows. Commands that print data "
        "take --json for one line of JSON."_s;
    for (const Command *command : commands())
        page.usages.append({command->name, command->arguments, command->description, command->options()});
    page.sections = {{u"EXIT STATUS"_s, exitStatus},
                     {u"FILES"_s, u"  ~/.local/share/Quorvane/  The data Quorvane saved for offline use, which next "
                                  "and agenda read when Quorvane isn't running.\n"
                                  "  ~/.config/Quorvane/Quorvane.ini  Quorvane's preferences, such as its server.\n\n"
                                  "The account's token is read from the desktop's Secret Service keyring and never "
                                  "printed."_s},
                     {u"SEE ALSO"_s, u"quorvane(1)"_s}};
    return ManPage::roff(page);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(u"quorvanectl"_s);
    QCoreApplication::setApplicationVersion(QString::fromLatin1(build::version));

    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1 && !arguments.at(1).startsWith(u'-')) {
        if (const Command *command = find(arguments.at(1)))
            return command->run(arguments.mid(1));
        cli::Output::error(u"quorvanectl: unknown command \"%1\"\n\n"_s.arg(arguments.at(1)) + commandList());
        return cli::usage;
    }

    QCommandLineParser parser;
    parser.setApplicationDescription(u"The terminal companion of Quorvane.\n\n"_s + commandList()
                                     + u"\n\nExit status:\n"_s + exitStatus);
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption man = ManPage::option();
    QCommandLineOption completion(u"bash-completion"_s, u"Print the bash completion script."_s);
    completion.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOptions({man, completion});
    parser.addPositionalArgument(u"command"_s, u"One of the commands above."_s, u"COMMAND [options]"_s);
    if (!parser.parse(arguments)) {
        cli::Output::error(parser.errorText());
        return cli::usage;
    }
    if (parser.isSet(man)) {
        cli::Output::line(manual().trimmed());
        return cli::ok;
    }
    if (parser.isSet(completion)) {
        cli::Output::line(cli::Completion::bash(commands()).trimmed());
        return cli::ok;
    }
    parser.process(app); // --help and --version
    parser.showHelp(cli::usage);
}
