// A desktop portal with only the colour-scheme setting, for showing the app's dark mode where
// no desktop runs one (a private session, Xvfb). It takes the portal's name on the session bus
// and switches when told:
//
//   quorvane-fake-portal [light|dark] &
//   gdbus call --session --dest org.freedesktop.portal.Desktop --object-path /fake \
//       --method com.peldrachen.quorvane.FakePortal.Switch dark
#include "support/FakeSettingsPortal.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

// The portal's values: 1 prefers dark, 2 prefers light.
std::optional<uint> schemeNamed(const QString &name)
{
    if (name == "dark"_L1)
        return 1;
    if (name == "light"_L1)
        return 2;
    return std::nullopt;
}

class Control : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.peldrachen.quorvane.FakePortal")

public:
    explicit Control(quorvane::test::FakeSettingsPortal &portal)
        : m_portal(portal)
    {}

public Q_SLOTS:
    Q_SCRIPTABLE bool Switch(const QString &name)
    {
        const std::optional<uint> value = schemeNamed(name);
        if (value)
            m_portal.setColorScheme(*value);
        return value.has_value();
    }

private:
    quorvane::test::FakeSettingsPortal &m_portal;
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QString first = app.arguments().value(1, u"light"_s);
    const std::optional<uint> scheme = schemeNamed(first);
    QTextStream err(stderr);
    if (!scheme) {
        err << "usage: quorvane-fake-portal [light|dark]\n";
        return 2;
    }
    QDBusConnection bus = QDBusConnection::sessionBus();
    quorvane::test::FakeSettingsPortal portal(bus, scheme);
    Control control(portal);
    if (!portal.start() || !bus.registerObject(u"/fake"_s, &control, QDBusConnection::ExportScriptableSlots)) {
        err << "quorvane-fake-portal: could not take the portal's name on the session bus\n";
        return 1;
    }
    return QCoreApplication::exec();
}

#include "fake-portal.moc"
