#pragma once

#include "ColorScheme.h"

#include <QDBusConnection>
#include <QObject>
#include <QPalette>

#include <memory>

namespace quorvane {

class PortalColorScheme;

// Keeps the application's palette on the desktop's light or dark preference, live: the
// desktop portal's where the session has one, else the platform's palette as it comes. Style
// and SystemColors follow the palette, so open windows change with it.
class Appearance : public QObject
{
    Q_OBJECT

public:
    // Remembers the platform's palette, for when the desktop has no preference.
    explicit Appearance(QObject *parent = nullptr);
    ~Appearance() override;

    // Follows the desktop portal on `session`, if it has one. `waitMs` > 0 waits that long for
    // the first answer, so that the first frame has the right colours; the portal must then be
    // another process.
    void follow(const QDBusConnection &session, int waitMs = 0);
    [[nodiscard]] ColorScheme preference() const;

    void apply(ColorScheme preference);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QPalette m_platform;
    bool m_ours = false; // the application's palette is one of ours, not the platform's
    std::unique_ptr<PortalColorScheme> m_portal;
};

} // namespace quorvane
