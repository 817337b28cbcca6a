#include "effects2d/BurstEffect.h"

void BurstEffect::makeReducedImageEffect(float limit)
{
    const QSizeF canvas = canvasSize();
    const float shorter = std::min(float(canvas.width()), float(canvas.height()));
    if (shorter > limit)
        m_imageZoom = limit / shorter;
    const double z = m_imageZoom; // the product is not single precision: 544 pixels make 199, not 200
    const QSize pixels(int(canvas.width() * z), int(canvas.height() * z));
    if (pixels.isEmpty())
        return;
    quartz::Drawing small(pixels);
    quartz::Context smallContext(small);
    drawMyself(smallContext, {QPointF(0, 0), small.size()});
    const QImage drawn = small.rendered(quartz::Part::whole(small.size()));
    if (drawn.isNull())
        return;
    quartz::Drawing layer(canvas);
    quartz::Context(layer).drawImage({QPointF(0, 0), canvas}, drawn);
    setLayer(std::move(layer));
}
