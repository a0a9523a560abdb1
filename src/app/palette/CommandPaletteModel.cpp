#include "palette/CommandPaletteModel.h"

#include "model/AppModel.h"
#include "palette/CommandPalette.h"
#include "shell/CommandTable.h"

namespace quorvane {

CommandPaletteModel::CommandPaletteModel(QObject *parent)
    : QAbstractListModel(parent)
{}

void CommandPaletteModel::setQuery(const QString &query)
{
    if (query == m_query)
        return;
    m_query = query;
    Q_EMIT queryChanged();
    search();
}

void CommandPaletteModel::setCurrent(int row)
{
    if (row == m_index)
        return;
    m_index = row;
    Q_EMIT indexChanged();
}

void CommandPaletteModel::open()
{
    m_commands = m_app && m_table ? CommandPalette::commands(*m_app, *m_table, m_app->now()) : QList<PaletteCommand>();
    search();
}

void CommandPaletteModel::run(int row)
{
    const QList<int> results = CommandPalette::results(m_commands, m_query);
    if (row < 0 || row >= results.size())
        return;
    // Taken before close() empties the query; the palette is gone before the action starts.
    const std::function<void()> action = m_commands.at(results.at(row)).run;
    close();
    action();
}

void CommandPaletteModel::close()
{
    if (m_app)
        m_app->setShowPalette(false);
    setQuery({});
}

void CommandPaletteModel::down()
{
    setCurrent(std::max(0, std::min(m_index + 1, count() - 1)));
}

void CommandPaletteModel::up()
{
    setCurrent(std::max(m_index - 1, 0));
}

void CommandPaletteModel::search()
{
    const int before = count();
    beginResetModel();
    m_results = CommandPalette::results(m_commands, m_query);
    endResetModel();
    if (count() != before)
        Q_EMIT countChanged();
    setCurrent(0);
}

int CommandPaletteModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant CommandPaletteModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const PaletteCommand &command = m_commands.at(m_results.at(index.row()));
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return command.title;
    case SubtitleRole:
        return m_app ? CommandPalette::subtitle(command, m_app->locale(), m_app->zone()) : command.subtitle;
    case SymbolRole:
        return command.symbol;
    default:
        return {};
    }
}

QHash<int, QByteArray> CommandPaletteModel::roleNames() const
{
    return {{TitleRole, "title"}, {SubtitleRole, "subtitle"}, {SymbolRole, "symbol"}};
}

} // namespace quorvane
