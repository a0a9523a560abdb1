// Draws the app's SVG icon as a square PNG of the given size, for the hicolor sizes:
//   quorvane-render-icon ICON.svg SIZE OUT.png
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QStringList args = QGuiApplication::arguments();
    const int size = args.value(2).toInt();
    QSvgRenderer svg(args.value(1));
    if (args.size() != 4 || size < 8 || !svg.isValid()) {
        std::fprintf(stderr, "usage: quorvane-render-icon ICON.svg SIZE OUT.png\n");
        return 2;
    }
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    svg.render(&painter);
    painter.end();
    return image.save(args.value(3)) ? 0 : 1;
}
