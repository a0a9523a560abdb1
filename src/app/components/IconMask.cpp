#include "components/IconMask.h"

#include <QPainter>
#include <QSvgRenderer>

namespace quorvane::IconMask {

QByteArray draw(const QString &path, QSize size)
{
    QSvgRenderer renderer(path);
    if (!renderer.isValid() || size.isEmpty())
        return {};
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
    }
    QByteArray coverage(qsizetype(size.width()) * size.height(), Qt::Uninitialized);
    uchar *out = reinterpret_cast<uchar *>(coverage.data());
    for (int y = 0; y < size.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        for (int x = 0; x < size.width(); ++x)
            *out++ = uchar(qAlpha(row[x]));
    }
    return coverage;
}

QImage tint(const uchar *coverage, QSize size, const QColor &color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            row[x] = qRgba(0, 0, 0, *coverage++);
    }
    // Keep the coverage, take the colour: as the drawing filled in place would look.
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

} // namespace quorvane::IconMask
