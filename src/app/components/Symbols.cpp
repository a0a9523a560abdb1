#include "components/Symbols.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace quorvane::Symbols {

namespace {
const QString folder = u":/qt/qml/Quorvane/Components/icons/"_s;

// Symbol name -> icon file stem. The set has outlines only, so a ".fill" name shares the
// outline of its plain form; the icon is tinted where it is drawn.
const QHash<QString, QString> &table()
{
    static const QHash<QString, QString> stems{
        // sections
        {u"sun.max"_s, u"sun"_s},
        {u"calendar"_s, u"calendar"_s},
        {u"square.stack.3d.up"_s, u"layers"_s},
        {u"clock"_s, u"clock"_s},
        {u"chart.bar.doc.horizontal"_s, u"file-chart-column"_s},
        {u"chart.xyaxis.line"_s, u"chart-line"_s},
        // banners and states
        {u"exclamationmark.triangle.fill"_s, u"triangle-alert"_s},
        {u"wifi.slash"_s, u"wifi-off"_s},
        {u"wifi.exclamationmark"_s, u"wifi-off"_s},
        {u"checkmark.circle.fill"_s, u"circle-check"_s},
        {u"checkmark"_s, u"check"_s},
        {u"xmark"_s, u"x"_s},
        {u"xmark.circle"_s, u"circle-x"_s},
        {u"info.circle"_s, u"info"_s},
        {u"questionmark.circle"_s, u"circle-help"_s},
        // actions
        {u"link"_s, u"link"_s},
        {u"paperplane"_s, u"send"_s},
        {u"paperplane.fill"_s, u"send"_s},
        {u"command"_s, u"command"_s},
        {u"arrow.clockwise"_s, u"rotate-cw"_s},
        {u"arrow.triangle.2.circlepath"_s, u"refresh-cw"_s},
        {u"plus"_s, u"plus"_s},
        {u"minus"_s, u"minus"_s},
        {u"plus.square.on.square"_s, u"copy-plus"_s},
        {u"minus.circle.fill"_s, u"circle-minus"_s},
        {u"trash"_s, u"trash-2"_s},
        {u"doc.on.doc"_s, u"copy"_s},
        {u"magnifyingglass"_s, u"search"_s},
        {u"line.3.horizontal.decrease.circle"_s, u"list-filter"_s},
        {u"wand.and.stars"_s, u"wand-sparkles"_s},
        {u"sparkles"_s, u"sparkles"_s},
        {u"star.fill"_s, u"star"_s},
        {u"safari"_s, u"compass"_s},
        {u"globe"_s, u"globe"_s},
        {u"arrow.forward.circle"_s, u"circle-arrow-right"_s},
        {u"arrow.down.circle"_s, u"circle-arrow-down"_s},
        // meeting locations
        {u"video"_s, u"video"_s},
        {u"video.fill"_s, u"video"_s},
        {u"phone.fill"_s, u"phone"_s},
        {u"mappin.and.ellipse"_s, u"map-pin"_s},
        {u"text.bubble.fill"_s, u"message-square-text"_s},
        {u"questionmark.bubble"_s, u"message-circle-question"_s},
        // calendar states
        {u"calendar.badge.clock"_s, u"calendar-clock"_s},
        {u"calendar.badge.exclamationmark"_s, u"calendar-x"_s},
        {u"calendar.badge.checkmark"_s, u"calendar-check"_s},
        {u"clock.badge.questionmark"_s, u"clock-alert"_s},
        {u"cup.and.saucer"_s, u"coffee"_s},
        // windows, people, settings
        {u"macwindow"_s, u"app-window"_s},
        {u"menubar.rectangle"_s, u"panel-top"_s},
        {u"sidebar.right"_s, u"panel-right"_s},
        {u"sidebar.left"_s, u"panel-left"_s},
        {u"gearshape"_s, u"settings"_s},
        {u"power"_s, u"power"_s},
        {u"person"_s, u"user"_s},
        {u"person.crop.circle"_s, u"circle-user"_s},
        {u"person.crop.square"_s, u"square-user"_s},
        {u"person.badge.key"_s, u"key-round"_s},
        {u"person.fill.questionmark"_s, u"user-x"_s},
        {u"bell"_s, u"bell"_s},
        {u"bell.badge"_s, u"bell-dot"_s},
        {u"bell.slash"_s, u"bell-off"_s},
    };
    return stems;
}
} // namespace

QString file(const QString &name)
{
    const QString found = stem(name);
    return found.isEmpty() ? QString() : folder + found + u".svg"_s;
}

QString stem(const QString &name)
{
    return table().value(name);
}

QStringList names()
{
    return table().keys();
}

} // namespace quorvane::Symbols
