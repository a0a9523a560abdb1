#include "components/IconProvider.h"

#include "components/IconMask.h"
#include "components/IconMasks.h"
#include "components/Symbols.h"

#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
constexpr int defaultSide = 16;

QColor colorFromQuery(const QString &query)
{
    QString hex = QUrlQuery(query).queryItemValue(u"color"_s, QUrl::FullyDecoded);
    if (hex.isEmpty())
        return Qt::black;
    if (!hex.startsWith(u'#'))
        hex.prepend(u'#');
    const QColor color = QColor::fromString(hex);
    return color.isValid() ? color : QColor(Qt::black);
}
} // namespace

IconProvider::IconProvider()
    : QQuickImageProvider(QQuickImageProvider::Image)
{}

QImage IconProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const qsizetype question = id.indexOf(u'?');
    const QString symbol = question < 0 ? id : id.left(question);
    const QColor color = question < 0 ? QColor(Qt::black) : colorFromQuery(id.mid(question + 1));
    QSize target = requestedSize;
    if (target.width() <= 0 && target.height() <= 0)
        target = QSize(defaultSide, defaultSide);
    else if (target.width() <= 0)
        target.setWidth(target.height());
    else if (target.height() <= 0)
        target.setHeight(target.width());

    const QString key = u"%1|%2|%3x%4"_s.arg(symbol).arg(color.rgba()).arg(target.width()).arg(target.height());
    QImage image;
    {
        const QMutexLocker locked(&m_lock);
        image = m_drawn.value(key);
    }
    if (image.isNull()) {
        image = render(symbol, color, target);
        const QMutexLocker locked(&m_lock);
        if (m_drawn.size() >= 512)
            m_drawn.clear();
        m_drawn.insert(key, image);
    }
    if (size)
        *size = image.size();
    return image;
}

QImage IconProvider::render(const QString &symbol, const QColor &color, const QSize &size)
{
    const QString stem = Symbols::stem(symbol);
    if (!stem.isEmpty() && size.width() == size.height()) {
        if (const uchar *coverage = IconMasks::find(stem, size.width()))
            return IconMask::tint(coverage, size, color);
    }
    const QByteArray coverage = stem.isEmpty() ? QByteArray() : IconMask::draw(Symbols::file(symbol), size);
    if (coverage.isEmpty()) {
        QImage blank(size, QImage::Format_ARGB32_Premultiplied);
        blank.fill(Qt::transparent);
        return blank;
    }
    return IconMask::tint(reinterpret_cast<const uchar *>(coverage.constData()), size, color);
}

} // namespace quorvane
