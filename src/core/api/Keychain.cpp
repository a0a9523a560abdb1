#include "Keychain.h"

namespace quorvane {

std::optional<QString> Keychain::token() const
{
    if (std::optional<QString> current = read(apiAccount))
        return current;
    return read(legacyAccount);
}

std::optional<QString> Keychain::read(const QString &account) const
{
    const std::optional<QByteArray> data = m_store->lookup(service, account);
    if (!data || data->isEmpty())
        return std::nullopt;
    return QString::fromUtf8(*data);
}

bool Keychain::write(const QString &value, const QString &account) const
{
    m_store->remove(service, account);
    if (value.isEmpty())
        return true;
    return m_store->add(service, account, label, value.toUtf8());
}

void Keychain::signOut() const
{
    write(QString(), apiAccount);
    write(QString(), legacyAccount);
}

} // namespace quorvane
