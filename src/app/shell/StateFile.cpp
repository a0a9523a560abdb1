#include "shell/StateFile.h"

#include "ISO.h"
#include "model/AppModel.h"

#include <QJsonDocument>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {

QJsonValue instant(const std::optional<Instant> &at)
{
    return at && *at > distantPast() ? QJsonValue(ISO::string(*at)) : QJsonValue();
}

QString kindName(Banner::Kind kind)
{
    static const QString names[] = {u"error"_s, u"offline"_s, u"info"_s}; // in the order of Banner::Kind
    return names[int(kind)];
}

} // namespace

StateFile::StateFile(const AppModel &app, QString path, QObject *parent)
    : QObject(parent)
    , m_app(app)
    , m_path(std::move(path))
{
    m_pending.setSingleShot(true);
    m_pending.setInterval(0);
    connect(&m_pending, &QTimer::timeout, this, &StateFile::write);
    for (const auto signal : {&AppModel::snapshotChanged, &AppModel::loadingChanged, &AppModel::bannerChanged,
                              &AppModel::offlineChanged, &AppModel::needsSignInChanged, &AppModel::lastRefreshChanged})
        connect(&app, signal, &m_pending, qOverload<>(&QTimer::start));
    connect(&app, &AppModel::announced, this, [this](const QString &id, bool cancelled) {
        ++m_announced[id + (cancelled ? u" cancelled"_s : u" booked"_s)];
        m_pending.start();
    });
    write();
}

QJsonObject StateFile::state() const
{
    QJsonObject banner;
    if (const std::optional<Banner> &b = m_app.banner())
        banner = {{u"kind"_s, kindName(b->kind)}, {u"text"_s, b->message}, {u"retry"_s, b->retry}};
    QJsonObject announced;
    for (auto it = m_announced.cbegin(); it != m_announced.cend(); ++it)
        announced.insert(it.key(), it.value());
    return {
        {u"signedIn"_s, !m_app.needsSignIn()},
        {u"signInShown"_s, m_app.needsSignIn() && !m_app.account()},
        {u"offline"_s, m_app.offline()},
        {u"loading"_s, m_app.loading()},
        {u"savedAt"_s, instant(m_app.snapshot().savedAt)},
        {u"lastSync"_s, instant(m_app.lastRefresh())},
        {u"banner"_s, banner.isEmpty() ? QJsonValue() : QJsonValue(banner)},
        {u"bookings"_s, int(m_app.allBookings().size())},
        {u"announced"_s, announced},
    };
}

void StateFile::write()
{
    const QByteArray bytes = QJsonDocument(state()).toJson(QJsonDocument::Compact);
    if (bytes == m_written)
        return;
    QSaveFile file(m_path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
        && file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) && file.commit())
        m_written = bytes;
}

} // namespace quorvane
