#include "components/Appearance.h"

#include "components/SchemePalette.h"
#include "linux/PortalColorScheme.h"

#include <QGuiApplication>
#include <QQuickWindow>

namespace quorvane {

Appearance::Appearance(QObject *parent)
    : QObject(parent)
    , m_platform(QGuiApplication::palette())
{
    QCoreApplication::instance()->installEventFilter(this);
}

Appearance::~Appearance() = default;

void Appearance::follow(const QDBusConnection &session, int waitMs)
{
    if (!session.isConnected() || !PortalColorScheme::available(session))
        return;
    m_portal = std::make_unique<PortalColorScheme>(session);
    connect(m_portal.get(), &PortalColorScheme::changed, this, &Appearance::apply);
    if (waitMs > 0) {
        m_portal->readNow(waitMs);
        apply(m_portal->scheme());
    }
    m_portal->start();
}

ColorScheme Appearance::preference() const
{
    return m_portal ? m_portal->scheme() : ColorScheme::noPreference;
}

void Appearance::apply(ColorScheme preference)
{
    const QPalette palette = SchemePalette::choose(preference, m_platform);
    m_ours = palette != m_platform;
    QGuiApplication::setPalette(palette);
}

bool Appearance::eventFilter(QObject *watched, QEvent *event)
{
    // Qt Quick Controls start a window that is made later on the style's palette, which comes
    // from the platform, and take the application's only when it changes: a window of ours
    // is told of the change as it shows.
    if (m_ours && event->type() == QEvent::Show && qobject_cast<QQuickWindow *>(watched)) {
        QEvent change(QEvent::ApplicationPaletteChange);
        QCoreApplication::sendEvent(watched, &change);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quorvane
