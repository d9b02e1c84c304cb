// sonoria-render-icon SVG ROOT NAME SIZE...: renders the application icon at each SIZE into
// ROOT/<SIZE>x<SIZE>/apps/NAME.png, the hicolor theme's layout. Run by the build, so the PNG sizes
// always follow the one drawn icon instead of being edited by hand.

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

#include <cstdio>

namespace {

bool renderOne(QSvgRenderer& renderer, const QString& root, const QString& name, int size) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        renderer.render(&painter, QRectF(0, 0, size, size));
    }
    const QString folder = QStringLiteral("%1/%2x%2/apps").arg(root).arg(size);
    if (!QDir().mkpath(folder))
        return false;
    return image.save(folder + QLatin1Char('/') + name + QStringLiteral(".png"), "PNG");
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 5) {
        std::fprintf(stderr, "usage: %s SVG ROOT NAME SIZE...\n", argv[0]);
        return 2;
    }
    QSvgRenderer renderer(QString::fromLocal8Bit(argv[1]));
    if (!renderer.isValid()) {
        std::fprintf(stderr, "%s: cannot read %s\n", argv[0], argv[1]);
        return 1;
    }
    const QString root = QString::fromLocal8Bit(argv[2]);
    const QString name = QString::fromLocal8Bit(argv[3]);
    for (int i = 4; i < argc; ++i) {
        const int size = QString::fromLocal8Bit(argv[i]).toInt();
        if (size <= 0 || !renderOne(renderer, root, name, size)) {
            std::fprintf(stderr, "%s: cannot render size %s\n", argv[0], argv[i]);
            return 1;
        }
    }
    return 0;
}
