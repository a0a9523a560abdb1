#pragma once

#include "model/AppListModel.h"

#include "EventType.h"

namespace quorvane {

// The host's event types from the draft, in their order, with the screen's selection and what
// the list's buttons, menu and keys do: add, duplicate, delete, reorder, copy a link. Every
// change is one edit of the draft; the model saves it after the pause.
class EventTypeListModel : public AppListModel
{
    Q_OBJECT
    QML_ELEMENT
    // The selected type's id; it may name a type that a refresh has taken away.
    Q_PROPERTY(QString selection READ selection WRITE setSelection NOTIFY selectionChanged)
    // The selected type's row, or -1 when no row is selected or the selected type is gone.
    Q_PROPERTY(int currentRow READ currentRow NOTIFY currentChanged)
    Q_PROPERTY(bool canDelete READ canDelete NOTIFY currentChanged)

public:
    enum Role {
        IdRole = Qt::UserRole + 1,
        TitleRole,
        SubtitleRole, // "30 min · /consult"
        ColorRole,    // QColor of the type
        SymbolRole,   // the location's symbol
        ActiveRole,
        AccessibleNameRole, // the row read as one: "Consultation, 30 min · /consult, Off"
    };
    Q_ENUM(Role)

    explicit EventTypeListModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const QString &selection() const { return m_selection; }
    void setSelection(const QString &id);
    [[nodiscard]] int currentRow() const;
    [[nodiscard]] bool canDelete() const;

    // A new type at the end, selected.
    Q_INVOKABLE void add();
    // A copy of the row's type at the end, selected.
    Q_INVOKABLE void duplicate(int row);
    // Deletes the row's type unless it is the last one; the first type left is selected.
    Q_INVOKABLE void remove(int row);
    // Moves the row's type so that it ends at `to`.
    Q_INVOKABLE void move(int from, int to);
    // Moves the selected type up (-1) or down (1) by one.
    Q_INVOKABLE void moveCurrent(int by);
    Q_INVOKABLE void copyLink(int row);
    Q_INVOKABLE void selectRow(int row);
    // When the screen appears: the first type, if nothing is selected yet.
    Q_INVOKABLE void selectFirstIfNone();

Q_SIGNALS:
    void selectionChanged();
    void currentChanged();

protected:
    void rebuild() override;

private:
    [[nodiscard]] bool has(int row) const { return row >= 0 && row < m_types.size(); }
    // Tells QML of a new current row or delete state, only when either changed.
    void updateCurrent();

    QList<EventType> m_types;
    QString m_selection;
    int m_currentRow = -1;
    bool m_canDelete = false;
};

} // namespace quorvane
