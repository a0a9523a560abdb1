#pragma once

#include "model/AppListModel.h"

#include "availability/DragGesture.h"

namespace quorvane {

// One weekday's column of the week grid: its hours and focus blocks as rows, back to front,
// and the drag in progress. QML hands in pointer positions in the column's points; the column
// commits one edit of the settings when a gesture ends, and nothing while it runs.
class DayColumnModel : public AppListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int weekday READ weekday WRITE setWeekday NOTIFY weekdayChanged)
    Q_PROPERTY(bool focusMode READ focusMode WRITE setFocusMode NOTIFY focusModeChanged)
    // The column head ("Mon") and the container's accessible name ("Monday").
    Q_PROPERTY(QString heading READ heading NOTIFY weekdayChanged)
    Q_PROPERTY(QString title READ title NOTIFY weekdayChanged)
    // A new block being drawn: where, and its "9 AM–10 AM".
    Q_PROPERTY(bool drawing READ drawing NOTIFY gestureChanged)
    Q_PROPERTY(double drawY READ drawY NOTIFY gestureChanged)
    Q_PROPERTY(double drawHeight READ drawHeight NOTIFY gestureChanged)
    Q_PROPERTY(QString drawText READ drawText NOTIFY gestureChanged)
    // The row being moved or resized, or -1.
    Q_PROPERTY(int dragRow READ dragRow NOTIFY gestureChanged)

public:
    enum Role {
        FocusRole = Qt::UserRole + 1, // a focus block, else hours
        LabelRole,                    // the text drawn in the block
        TooltipRole,                  // "9 AM – 5 PM" of what shows, the preview during a drag
        AccessibleRole,               // "Mon available 9 AM to 5 PM"
        EditableRole,                 // belongs to the current mode
        YRole,                        // of what shows
        HeightRole,
        ShowsLabelRole, // 45 minutes or longer
        FillRole,       // fill opacity, and with the pointer over it
        HoverFillRole,
        OutlineRole, // outline width, 0 for none
        TintedTextRole,
        OpacityRole, // of the whole block
    };
    Q_ENUM(Role)

    explicit DayColumnModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] int weekday() const { return m_weekday; }
    void setWeekday(int weekday);
    [[nodiscard]] bool focusMode() const { return m_focusMode; }
    void setFocusMode(bool focus);
    [[nodiscard]] QString heading() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] bool drawing() const;
    [[nodiscard]] double drawY() const;
    [[nodiscard]] double drawHeight() const;
    [[nodiscard]] QString drawText() const;
    [[nodiscard]] int dragRow() const;

    // A press on empty space, on a block, or on a block's top or bottom edge. A press on a
    // block of the other mode is refused: that press belongs to empty space.
    Q_INVOKABLE void pressBackground(double x, double y);
    Q_INVOKABLE bool pressBlock(int row, double x, double y);
    Q_INVOKABLE bool pressEdge(int row, bool bottom, double x, double y);
    Q_INVOKABLE void moveTo(double x, double y);
    Q_INVOKABLE void release();
    Q_INVOKABLE void cancel();

    // The block's actions from the menu and the keyboard; each commits at once.
    Q_INVOKABLE void remove(int row);
    Q_INVOKABLE void extend(int row);
    Q_INVOKABLE void shorten(int row);
    Q_INVOKABLE void nudge(int row, int minutes);

Q_SIGNALS:
    void weekdayChanged();
    void focusModeChanged();
    void gestureChanged();

protected:
    void rebuild() override;

private:
    struct Block {
        bool focus = false;
        QString id;     // of a focus block
        int index = -1; // of an hours range
        TimeRange range;
        QString label;
        QString accessible;
        bool operator==(const Block &) const = default;
    };

    [[nodiscard]] bool editable(const Block &block) const { return block.focus == m_focusMode; }
    // The block's new range goes into the settings: an hours range is replaced (and merged),
    // a focus block found by id.
    void commit(const Block &block, const TimeRange &range);
    void commitAdd(const TimeRange &range);
    void touchDragged(int row);

    int m_weekday = 2;
    bool m_focusMode = false;
    QList<TimeRange> m_ranges; // this day's hours as last read
    QList<Block> m_blocks;
    DragGesture m_gesture;
};

} // namespace quorvane
