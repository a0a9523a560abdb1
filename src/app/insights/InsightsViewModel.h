#pragma once

#include "model/AppViewModel.h"

#include "Insights.h"
#include "insights/FigureRows.h"

#include <QStringList>

namespace quorvane {

// The insights screen's figures from the model's bookings, worked out again when they change
// and at each tick: the four tiles, the weeks' bars, the heat map of weekday by hour, and the
// ring of event types.
class InsightsViewModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool hasData READ hasData NOTIFY changed)
    Q_PROPERTY(int total READ total NOTIFY changed)
    Q_PROPERTY(int upcoming READ upcoming NOTIFY changed)
    Q_PROPERTY(QString cancelRate READ cancelRate NOTIFY changed)
    Q_PROPERTY(QString noShowRate READ noShowRate NOTIFY changed)
    // The heat map's row names, Monday first; its hour marks every 3 hours.
    Q_PROPERTY(QStringList weekdayNames READ weekdayNames NOTIFY changed)
    Q_PROPERTY(QStringList hourMarks READ hourMarks CONSTANT)
    // weeks: label, count, share (of the busiest week), marked, accessibleText
    Q_PROPERTY(quorvane::FigureRows *weeks READ weeks CONSTANT)
    // cells: row, hour, count, intensity (0 for the quietest cell, 1 for the busiest), accessibleText
    Q_PROPERTY(quorvane::FigureRows *cells READ cells CONSTANT)
    // types: title, typeColor, count, start, sweep (degrees on the ring)
    Q_PROPERTY(quorvane::FigureRows *types READ types CONSTANT)

public:
    // The first hour of the heat map, and its count of hours.
    static constexpr int firstHour = 0;
    static constexpr int hours = 24;

    explicit InsightsViewModel(QObject *parent = nullptr);

    [[nodiscard]] bool hasData() const { return m_insights.total > 0; }
    [[nodiscard]] int total() const { return m_insights.total; }
    [[nodiscard]] int upcoming() const { return m_insights.upcoming; }
    [[nodiscard]] QString cancelRate() const;
    [[nodiscard]] QString noShowRate() const;
    [[nodiscard]] QStringList weekdayNames() const;
    [[nodiscard]] QStringList hourMarks() const;
    [[nodiscard]] FigureRows *weeks() { return &m_weeks; }
    [[nodiscard]] FigureRows *cells() { return &m_cells; }
    [[nodiscard]] FigureRows *types() { return &m_types; }

private:
    void recompute() override;
    void fillWeeks();
    void fillCells();
    void fillTypes();

    Insights m_insights;
    bool m_filled = false;
    FigureRows m_weeks;
    FigureRows m_cells;
    FigureRows m_types;
};

} // namespace quorvane
