#include "insights/InsightsViewModel.h"

#include "components/HexColor.h"
#include "insights/InsightsFigures.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(InsightsViewModel)
};
} // namespace

InsightsViewModel::InsightsViewModel(QObject *parent)
    : AppViewModel({&AppModel::snapshotChanged, &AppModel::ticked}, parent)
    , m_weeks({"label", "count", "share", "marked", "accessibleText"}, this)
    , m_cells({"row", "hour", "count", "intensity", "accessibleText"}, this)
    , m_types({"title", "typeColor", "count", "start", "sweep"}, this)
{}

void InsightsViewModel::recompute()
{
    Insights next = m_app ? m_app->insights() : Insights();
    // The charts are drawn again only when what they show has changed.
    const bool same = m_filled && next == m_insights && next.byType == m_insights.byType;
    m_insights = std::move(next);
    if (same)
        return;
    m_filled = true;
    fillWeeks();
    fillCells();
    fillTypes();
}

QString InsightsViewModel::cancelRate() const
{
    return m_app ? InsightsFigures::rate(m_insights.cancelRate(), m_app->locale()) : QString();
}

QString InsightsViewModel::noShowRate() const
{
    return m_app ? InsightsFigures::rate(m_insights.noShowRate(), m_app->locale()) : QString();
}

QStringList InsightsViewModel::weekdayNames() const
{
    QStringList out;
    for (const int weekday : InsightsFigures::rowOrder())
        out << InsightsFigures::weekdayName(weekday, m_app ? m_app->locale() : u"en_US"_s);
    return out;
}

QStringList InsightsViewModel::hourMarks() const
{
    QStringList out;
    for (int hour = firstHour; hour < firstHour + hours; hour += 3)
        out << InsightsFigures::hourLabel(hour);
    return out;
}

void InsightsViewModel::fillWeeks()
{
    int most = 1;
    for (const Insights::Week &week : std::as_const(m_insights.weeks))
        most = std::max(most, week.count);
    const qsizetype last = m_insights.weeks.size() - 1;
    QList<QVariantList> rows;
    for (qsizetype i = 0; i <= last; ++i) {
        const Insights::Week &week = m_insights.weeks.at(i);
        const QString label =
            m_app ? InsightsFigures::weekLabel(week.start, m_app->locale(), m_app->zone()) : QString();
        // Every second week carries a mark, counted back from the current one.
        rows.append({label, week.count, double(week.count) / most, (last - i) % 2 == 0,
                     Text::tr("Week of %1: %2").arg(label).arg(week.count)});
    }
    m_weeks.setRows(std::move(rows));
}

void InsightsViewModel::fillCells()
{
    int least = std::numeric_limits<int>::max();
    int most = 0;
    for (const Insights::Cell &cell : std::as_const(m_insights.heatmap)) {
        least = std::min(least, cell.count);
        most = std::max(most, cell.count);
    }
    const QString locale = m_app ? m_app->locale() : u"en_US"_s;
    QList<QVariantList> rows;
    for (const Insights::Cell &cell : std::as_const(m_insights.heatmap)) {
        const double intensity = most > least ? double(cell.count - least) / (most - least) : 1.0;
        rows.append({InsightsFigures::row(cell.weekday), cell.hour, cell.count, intensity,
                     u"%1 %2: %3"_s
                         .arg(InsightsFigures::weekdayName(cell.weekday, locale), InsightsFigures::hourLabel(cell.hour))
                         .arg(cell.count)});
    }
    m_cells.setRows(std::move(rows));
}

void InsightsViewModel::fillTypes()
{
    QList<int> counts;
    for (const Insights::TypeCount &entry : std::as_const(m_insights.byType))
        counts << entry.count;
    const QList<InsightsFigures::Sector> sectors = InsightsFigures::ring(counts, 3);
    QList<QVariantList> rows;
    for (qsizetype i = 0; i < m_insights.byType.size(); ++i) {
        const Insights::TypeCount &entry = m_insights.byType.at(i);
        rows.append({m_app ? m_app->typeTitle(entry.slug) : entry.slug,
                     m_app ? HexColor::parse(m_app->typeColorHex(entry.slug)) : QColor(), entry.count,
                     sectors.at(i).start, sectors.at(i).sweep});
    }
    m_types.setRows(std::move(rows));
}

} // namespace quorvane
