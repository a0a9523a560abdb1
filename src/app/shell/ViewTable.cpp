#include "shell/ViewTable.h"

using namespace Qt::StringLiterals;

namespace quorvane::ViewTable {

QmlType section(AppSection section)
{
    switch (section) {
    case AppSection::today:
        return {u"Quorvane.Today"_s, u"TodayView"_s};
    case AppSection::bookings:
        return {u"Quorvane.Bookings"_s, u"BookingsView"_s};
    case AppSection::polls:
        return {u"Quorvane.Polls"_s, u"PollsView"_s};
    case AppSection::insights:
        return {u"Quorvane.Insights"_s, u"InsightsView"_s};
    case AppSection::types:
        return {u"Quorvane.Types"_s, u"EventTypesView"_s};
    case AppSection::availability:
        return {u"Quorvane.Availability"_s, u"AvailabilityView"_s};
    }
    return {};
}

QmlType window(AppWindow::Id window)
{
    switch (window) {
    case AppWindow::Main:
        return {u"Quorvane.Main"_s, u"MainWindow"_s};
    case AppWindow::Share:
        return {u"Quorvane.Shell"_s, u"ShareWindow"_s};
    case AppWindow::Onboarding:
        return {u"Quorvane.Shell"_s, u"OnboardingWindow"_s};
    case AppWindow::About:
        return {u"Quorvane.Shell"_s, u"AboutWindow"_s};
    case AppWindow::Settings:
        return {u"Quorvane.Shell"_s, u"SettingsWindow"_s};
    }
    return {};
}

QmlType content(AppWindow::Id window)
{
    switch (window) {
    case AppWindow::Onboarding:
        return {u"Quorvane.Onboarding"_s, u"OnboardingView"_s};
    case AppWindow::About:
        return {u"Quorvane.About"_s, u"AboutView"_s};
    case AppWindow::Settings:
        return {u"Quorvane.Settings"_s, u"SettingsView"_s};
    case AppWindow::Share:
        return {u"Quorvane.Share"_s, u"QuickShareView"_s};
    case AppWindow::Main:
        break;
    }
    return {};
}

QmlType newPollSheet()
{
    return {u"Quorvane.Polls"_s, u"NewPollSheet"_s};
}

QmlType commandPalette()
{
    return {u"Quorvane.Palette"_s, u"CommandPalette"_s};
}

QmlType signInHero()
{
    return {u"Quorvane.Main"_s, u"SignInHero"_s};
}

QmlType popover()
{
    return {u"Quorvane.Tray"_s, u"MenuBarPopover"_s};
}

QList<QmlType> all()
{
    QList<QmlType> out;
    for (const AppSection s : Section::allCases())
        out << section(s);
    for (const AppWindow::Id w : AppWindow::all())
        out << window(w) << content(w);
    out << newPollSheet() << commandPalette() << signInHero() << popover();
    out.removeIf([](const QmlType &type) { return type.isNull(); });
    return out;
}

} // namespace quorvane::ViewTable
