#include "model/AppSection.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane::Section {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(Section)
};

struct Row {
    AppSection section;
    QString id;
    const char *title; // translated when asked for: the table outlives a change of language
    QString symbol;
};

const QList<Row> &table()
{
    static const QList<Row> rows{
        {AppSection::today, u"today"_s, QT_TRANSLATE_NOOP("Section", "Today"), u"sun.max"_s},
        {AppSection::bookings, u"bookings"_s, QT_TRANSLATE_NOOP("Section", "Bookings"), u"calendar"_s},
        {AppSection::types, u"types"_s, QT_TRANSLATE_NOOP("Section", "Event Types"), u"square.stack.3d.up"_s},
        {AppSection::availability, u"availability"_s, QT_TRANSLATE_NOOP("Section", "Availability"), u"clock"_s},
        {AppSection::polls, u"polls"_s, QT_TRANSLATE_NOOP("Section", "Polls"), u"chart.bar.doc.horizontal"_s},
        {AppSection::insights, u"insights"_s, QT_TRANSLATE_NOOP("Section", "Insights"), u"chart.xyaxis.line"_s},
    };
    return rows;
}

const Row &row(AppSection section)
{
    return table().at(qsizetype(section));
}
} // namespace

QList<AppSection> allCases()
{
    QList<AppSection> out;
    for (const Row &r : table())
        out.append(r.section);
    return out;
}

QString id(AppSection section)
{
    return row(section).id;
}
QString title(AppSection section)
{
    return Text::tr(row(section).title);
}
QString symbol(AppSection section)
{
    return row(section).symbol;
}

std::optional<AppSection> fromId(const QString &id)
{
    for (const Row &r : table()) {
        if (r.id == id)
            return r.section;
    }
    return std::nullopt;
}

QString shortcut(AppSection section)
{
    return QString::number(allCases().indexOf(section) + 1);
}

} // namespace quorvane::Section
