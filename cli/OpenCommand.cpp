#include "OpenCommand.h"

#include "AppBus.h"
#include "Output.h"

using namespace Qt::StringLiterals;

namespace quorvane::cli::OpenCommand {

namespace {

const QStringList windows{u"main"_s, u"share"_s, u"palette"_s, u"settings"_s};

QList<QCommandLineOption> none()
{
    return {};
}

int perform(const QString &command, const QString &action)
{
    AppBus bus;
    if (const QString failed = bus.activate(action); !failed.isEmpty()) {
        Output::error(u"quorvanectl %1: %2"_s.arg(command, failed));
        return failure;
    }
    return ok;
}

int runOpen(const QStringList &arguments)
{
    QCommandLineParser parser;
    if (const std::optional<int> done = parse(parser, open(), arguments))
        return *done;
    const QStringList words = parser.positionalArguments().mid(1);
    if (words.size() != 1 || !windows.contains(words.first())) {
        Output::error(u"quorvanectl open: say which window: %1"_s.arg(windows.join(u", "_s)));
        return usage;
    }
    return perform(u"open"_s, words.first());
}

int runJoin(const QStringList &arguments)
{
    QCommandLineParser parser;
    if (const std::optional<int> done = parse(parser, join(), arguments))
        return *done;
    if (parser.positionalArguments().size() > 1) {
        Output::error(u"quorvanectl join: unexpected argument \"%1\""_s.arg(parser.positionalArguments().at(1)));
        return usage;
    }
    // Said here, since the app quietly does nothing without a link to open.
    if (const std::optional<QVariantMap> status = AppBus().status()) {
        if (!status->value(u"SignedIn"_s).toBool()) {
            Output::error(u"quorvanectl join: You're not signed in."_s);
            return notSignedIn;
        }
        if (status->value(u"NextJoinLink"_s).toString().isEmpty()) {
            Output::error(u"quorvanectl join: the next meeting has no link to join"_s);
            return failure;
        }
    }
    return perform(u"join"_s, u"join-next"_s);
}

} // namespace

const Command &open()
{
    static const Command c{u"open"_s,
                           u"Open a window of Quorvane."_s,
                           windows.join(u'|'),
                           u"Opens the main window, Share Times, the command palette or Settings in the running "
                           "Quorvane, which is started first when it isn't running."_s,
                           &none,
                           &runOpen,
                           windows};
    return c;
}

const Command &join()
{
    static const Command c{u"join"_s,
                           u"Join the next meeting."_s,
                           {},
                           u"Opens the next meeting's join link in the browser, through the running Quorvane "
                           "(started first when it isn't running)."_s,
                           &none,
                           &runJoin};
    return c;
}

} // namespace quorvane::cli::OpenCommand
