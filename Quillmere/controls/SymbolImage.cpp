#include "Quillmere/controls/SymbolImage.h"

#include "Quillmere/controls/SymbolTable.h"

#include <QtCore/QCache>
#include <QtCore/QMutex>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

namespace quillmere {

namespace {

// In kibibytes: a few hundred symbols of usual size.
constexpr int cacheLimit = 2048;

QImage drawn(const QString& name, int pixels, const QColor& color) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(symbolResource(name)).render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

} // namespace

QImage symbolImage(const QString& name, int pixels, const QColor& color) {
    static QMutex mutex;
    static QCache<QString, QImage> cache(cacheLimit);
    const QString key =
        name + u'|' + QString::number(pixels) + u'|' + QString::number(color.rgba(), 16);
    const QMutexLocker lock(&mutex);
    if (const QImage* image = cache.object(key)) {
        return *image;
    }
    QImage image = drawn(name, pixels, color);
    cache.insert(key, new QImage(image), 1 + static_cast<int>(image.sizeInBytes() / 1024));
    return image;
}

} // namespace quillmere
