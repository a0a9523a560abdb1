#pragma once

#include "model/AppModel.h"
#include "palette/PaletteCommand.h"
#include "shell/CommandTable.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// The command palette's rows for QML: the list is built anew at each opening, the query
// narrows it, and `index` is the highlighted row, back at the top whenever the query changes.
class CommandPaletteModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quorvane::AppModel *app MEMBER m_app NOTIFY appChanged)
    Q_PROPERTY(quorvane::CommandTable *commands MEMBER m_table NOTIFY commandsChanged)
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(int index READ current WRITE setCurrent NOTIFY indexChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        TitleRole = Qt::UserRole + 1,
        SubtitleRole,
        SymbolRole,
    };
    Q_ENUM(Role)

    explicit CommandPaletteModel(QObject *parent = nullptr);

    [[nodiscard]] const QString &query() const { return m_query; }
    void setQuery(const QString &query);
    // The highlighted row, `index` in QML.
    [[nodiscard]] int current() const { return m_index; }
    void setCurrent(int row);
    [[nodiscard]] int count() const { return int(m_results.size()); }

    // Builds the list from what the app holds now, with the highlight on the first row.
    Q_INVOKABLE void open();
    // Runs a row of the results: the palette closes first. A row that isn't there does nothing.
    Q_INVOKABLE void run(int row);
    // Hides the palette and empties the query.
    Q_INVOKABLE void close();
    // The arrows: no wrapping at either end.
    Q_INVOKABLE void down();
    Q_INVOKABLE void up();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void appChanged();
    void commandsChanged();
    void queryChanged();
    void indexChanged();
    void countChanged();

private:
    void search();

    QPointer<AppModel> m_app;
    QPointer<CommandTable> m_table;
    QList<PaletteCommand> m_commands;
    QList<int> m_results;
    QString m_query;
    int m_index = 0;
};

} // namespace quorvane
