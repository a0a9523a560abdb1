#include "shell/CommandTable.h"

#include "BuildInfo.h"
#include "UrlOpener.h"
#include "about/About.h"
#include "model/AppModel.h"
#include "shell/KeyLabel.h"
#include "shell/ShellController.h"
#include "updates/Updater.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(CommandTable)
};

QKeySequence ctrl(int key, Qt::KeyboardModifiers more = {})
{
    return QKeySequence(QKeyCombination(Qt::ControlModifier | more, Qt::Key(key)));
}

// Only a web page gets an item: the build configuration is trusted, but not with schemes.
QUrl webPage(const QString &text)
{
    const QUrl site(text.trimmed(), QUrl::StrictMode);
    const bool web = site.scheme() == "https"_L1 || site.scheme() == "http"_L1;
    return web && !site.host().isEmpty() && UrlOpener::allows(site) ? site : QUrl();
}

QUrl dashboard(const QUrl &base)
{
    QUrl url = base;
    QString path = url.path();
    if (!path.endsWith(u'/'))
        path += u'/';
    url.setPath(path + u"app"_s);
    return url;
}

} // namespace

CommandTable::CommandTable(AppModel &model, ShellController &shell, const UrlOpener &opener, QObject *parent)
    : CommandTable(model, shell, opener,
                   Maker{QString::fromUtf8(build::makerName), QString::fromUtf8(build::makerSite)}, parent)
{}

CommandTable::CommandTable(AppModel &model, ShellController &shell, const UrlOpener &opener, const Maker &maker,
                           QObject *parent)
    : QObject(parent)
{
    AppModel *app = &model;
    ShellController *windows = &shell;
    const UrlOpener *links = &opener;
    const auto open = [windows](AppWindow::Id window) { return [windows, window] { windows->open(window); }; };
    const QUrl site = webPage(maker.site);

    QList<Command::Row> rows;
    // In CommandId order. The sections come first: the palette lists them in this order.
    for (const AppSection section : Section::allCases()) {
        const int place = int(rows.size()) + 1;
        rows.append({u"go."_s + Section::id(section), Section::title(section), Section::symbol(section),
                     keys(CommandId::Id(CommandId::GoToday + place - 1)),
                     Text::tr("Go to %1").arg(Section::title(section)), [app, section] { app->setSection(section); }});
    }
    rows.append({u"shareTimes"_s, Text::tr("Share Times…"), u"paperplane"_s, keys(CommandId::ShareTimes),
                 Text::tr("Quick Share times"), open(AppWindow::Share)});
    // The sheet belongs to the Polls screen, which must be showing first.
    rows.append({u"newPoll"_s, Text::tr("New Poll"), u"plus.square.on.square"_s, keys(CommandId::NewPoll),
                 Text::tr("New poll"), [app] {
                     app->setSection(AppSection::polls);
                     app->setShowNewPoll(true);
                 }});
    rows.append({u"refresh"_s, Text::tr("Refresh"), u"arrow.clockwise"_s, keys(CommandId::Refresh), Text::tr("Refresh"),
                 [app] { app->refreshNow(); }});
    rows.append({u"openDashboard"_s,
                 Text::tr("Open Web Dashboard"),
                 u"safari"_s,
                 {},
                 Text::tr("Open web dashboard"),
                 [app, links] { links->open(dashboard(app->baseURL())); }});
    rows.append({u"openBookingPage"_s,
                 Text::tr("Open My Booking Page"),
                 u"person.crop.square"_s,
                 {},
                 Text::tr("Open my booking page"),
                 [app, links] {
                     const QUrl page(app->pageLink(), QUrl::StrictMode);
                     if (page.isValid())
                         links->open(page);
                 }});
    rows.append({u"settings"_s, Text::tr("Settings…"), u"gearshape"_s, keys(CommandId::Settings), Text::tr("Settings"),
                 open(AppWindow::Settings)});
    rows.append(
        {u"commandPalette"_s, Text::tr("Command Palette…"), u"command"_s, keys(CommandId::CommandPalette), {}, [app] {
             app->setShowPalette(true);
         }});
    rows.append({u"joinNext"_s,
                 Text::tr("Join Next Meeting"),
                 u"video.fill"_s,
                 keys(CommandId::JoinNext),
                 {},
                 [app] { app->joinNext(); },
                 [app] { return app->canJoinNext(); }});
    rows.append({u"openMain"_s, Text::tr("Open Quorvane"), u"macwindow"_s, {}, {}, open(AppWindow::Main)});
    rows.append(
        {u"welcomeGuide"_s, Text::tr("Welcome Guide"), u"questionmark.circle"_s, {}, {}, open(AppWindow::Onboarding)});
    rows.append({u"about"_s, Text::tr("About Quorvane"), u"info.circle"_s, {}, {}, open(AppWindow::About)});
    // Until an updater is attached there is nothing to check.
    rows.append({u"checkForUpdates"_s,
                 Text::tr("Check for Updates…"),
                 u"arrow.down.circle"_s,
                 {},
                 {},
                 // What the check finds shows in the Updates pane.
                 [updater = m_updater, windows] {
                     if (*updater)
                         (*updater)->check();
                     windows->openSettings(u"updates"_s);
                 },
                 [updater = m_updater] { return *updater && (*updater)->canCheck(); }});
    rows.append({u"madeBy"_s, About::madeBy(maker.name.trimmed()), u"person"_s, {}, {}, open(AppWindow::About)});
    rows.append({u"makerSite"_s,
                 site.isEmpty() ? QString() : About::siteName(site),
                 u"globe"_s,
                 {},
                 {},
                 [links, site] { links->open(site); },
                 {},
                 !site.isEmpty()});
    rows.append({u"quit"_s, Text::tr("Quit"), u"power"_s, keys(CommandId::Quit), {}, [windows] { windows->quit(); }});
    Q_ASSERT(rows.size() == CommandId::Quit + 1);

    for (Command::Row &row : rows)
        m_commands.append(new Command(std::move(row), this));
    Command *join = get(CommandId::JoinNext);
    connect(app, &AppModel::nextChanged, join, &Command::enabledChanged);
}

void CommandTable::attachUpdater(Updater *updater)
{
    *m_updater = updater;
    Command *check = get(CommandId::CheckForUpdates);
    connect(updater, &Updater::stateChanged, check, &Command::enabledChanged);
    Q_EMIT check->enabledChanged();
}

Command *CommandTable::get(CommandId::Id id) const
{
    return m_commands.value(id);
}

QList<Command *> CommandTable::sections() const
{
    return m_commands.mid(CommandId::GoToday, CommandId::GoInsights - CommandId::GoToday + 1);
}

QList<Command *> CommandTable::paletteCommands() const
{
    QList<Command *> out;
    for (Command *command : m_commands) {
        if (!command->paletteTitle().isEmpty() && command->available())
            out.append(command);
    }
    return out;
}

QKeySequence CommandTable::keys(CommandId::Id id)
{
    switch (id) {
    case CommandId::GoToday:
    case CommandId::GoBookings:
    case CommandId::GoTypes:
    case CommandId::GoAvailability:
    case CommandId::GoPolls:
    case CommandId::GoInsights:
        return ctrl(Qt::Key_1 + (id - CommandId::GoToday));
    case CommandId::ShareTimes:
        return ctrl(Qt::Key_S, Qt::ShiftModifier);
    case CommandId::NewPoll:
        return ctrl(Qt::Key_N, Qt::ShiftModifier);
    case CommandId::Refresh:
        return ctrl(Qt::Key_R);
    case CommandId::Settings:
        return ctrl(Qt::Key_Comma);
    case CommandId::CommandPalette:
        return ctrl(Qt::Key_K);
    case CommandId::JoinNext:
        return ctrl(Qt::Key_J, Qt::ShiftModifier);
    case CommandId::Quit:
        return ctrl(Qt::Key_Q);
    default:
        return {};
    }
}

QKeySequence CommandTable::shareHotKey()
{
    return QKeySequence(QKeyCombination(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier, Qt::Key_S));
}

QString CommandTable::shareHotKeyText()
{
    return KeyLabel::text(shareHotKey());
}

} // namespace quorvane
