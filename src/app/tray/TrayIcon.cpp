#include "tray/TrayIcon.h"

#include "components/IconProvider.h"
#include "components/Tint.h"
#include "model/AppModel.h"
#include "tray/TrayText.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
// White on the accent blue reads on light and dark panels alike.
const QColor ink(Qt::white);

// The largest bold font, up to half the icon's height, in which the text fits the width.
std::optional<QFont> fittingFont(const QString &text, int size)
{
    QFont font;
    font.setBold(true);
    for (int pixels = size / 2; pixels >= 8; --pixels) {
        font.setPixelSize(pixels);
        if (QFontMetricsF(font).horizontalAdvance(text) <= size * 0.92)
            return font;
    }
    return std::nullopt;
}

QPixmap paint(const QString &text, int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(Tints::color(Tint::accent));
    p.drawRoundedRect(QRectF(0, 0, size, size), size * 0.2, size * 0.2);
    const std::optional<QFont> font = text.isEmpty() ? std::nullopt : fittingFont(text, size);
    if (!font) {
        const int inset = size / 6;
        const QSize glyph(size - 2 * inset, size - 2 * inset);
        p.drawImage(QPoint(inset, inset), IconProvider::render(u"calendar.badge.clock"_s, ink, glyph));
        return pixmap;
    }
    p.setFont(*font);
    p.setPen(ink);
    p.drawText(QRectF(0, 0, size, size), Qt::AlignCenter, text);
    return pixmap;
}
} // namespace

TrayIcon::TrayIcon(AppModel &model, QObject *parent)
    : QObject(parent)
    , m_model(model)
{
    for (auto signal : {&AppModel::ticked, &AppModel::snapshotChanged, &AppModel::preferencesChanged})
        connect(&m_model, signal, this, &TrayIcon::update);
    connect(&m_tray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        // A double click also arrives as a click first; answering it too would close the popover again.
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::Context)
            Q_EMIT clicked(m_tray.geometry());
    });
    update();
    m_tray.show();
}

QIcon TrayIcon::render(const QString &text)
{
    QIcon icon;
    for (int size : {16, 22, 24, 32, 48, 64})
        icon.addPixmap(paint(text, size));
    return icon;
}

void TrayIcon::update()
{
    const std::optional<Booking> next = m_model.next();
    const Instant now = m_model.now();
    const bool showsNext = m_model.menuBarShowsNext();
    m_tray.setToolTip(TrayText::toolTip(TrayText::title(next, now, showsNext)));
    const QString text = TrayText::iconText(next, now, showsNext);
    if (text == m_iconText && !m_tray.icon().isNull())
        return;
    m_iconText = text;
    m_tray.setIcon(render(text));
}

} // namespace quorvane
