#pragma once

#include <QHash>
#include <QMutex>
#include <QQuickImageProvider>

namespace quorvane {

// Draws the bundled icons in any colour: "image://icon/<symbol>?color=<RRGGBB or AARRGGBB>".
// An icon's coverage is filled with the colour (IconMask), so one file serves every tint and
// anti-aliasing survives; at the usual sizes the build has drawn the coverage already (IconMasks).
// An unknown symbol gives a transparent image of the requested size, so a missing icon leaves a
// gap and no error.
class IconProvider : public QQuickImageProvider
{
public:
    IconProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

    // The same drawing without an engine: the symbol at `size` in `color`.
    [[nodiscard]] static QImage render(const QString &symbol, const QColor &color, const QSize &size);

private:
    // The same few icons are asked for again and again (every row, every window); each is
    // drawn once. Images may be asked for from loader threads, hence the lock.
    QMutex m_lock;
    QHash<QString, QImage> m_drawn;
};

} // namespace quorvane
