#include "shell/Command.h"

#include "shell/KeyLabel.h"

namespace quorvane {

Command::Command(Row row, QObject *parent)
    : QObject(parent)
    , m_row(std::move(row))
{
    setObjectName(m_row.name);
}

QString Command::shortcut() const
{
    return m_row.keys.toString(QKeySequence::PortableText);
}

QString Command::shortcutText() const
{
    return KeyLabel::text(m_row.keys);
}

bool Command::enabled() const
{
    return m_row.available && (!m_row.isEnabled || m_row.isEnabled());
}

void Command::trigger()
{
    if (enabled() && m_row.run)
        m_row.run();
}

} // namespace quorvane
