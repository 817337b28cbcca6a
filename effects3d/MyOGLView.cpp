#include "effects3d/MyOGLView.h"

#include "effects2d/BaseEffect.h"
#include "effects3d/OpenGL.h"
#include "effects3d/OpenGLDevice.h"
#include "effects3d/OpenGLFrame.h"
#include "effects3d/PictureTexture.h"
#include "platform/foundation/Appearance.h"
#include "platform/foundation/NotificationCenter.h"

#include <algorithm>

#include <QElapsedTimer>
#include <QPainter>

namespace {

constexpr double kPictureEdge = 0.9; // of half the view
constexpr qint64 kSlowFrame = 33; // ms
constexpr int kLargestFrame = 4096, kTile = 2048; // pixels a side: several samples a pixel make larger ones heavy
constexpr double kDepthScale = 0.5; // bodies and bent surfaces that reach out of the unit cube stay whole

bool isBlank(const QImage& frame)
{
    const auto isEmptyRow = [&](int y) {
        const auto* row = reinterpret_cast<const QRgb*>(frame.constScanLine(y));
        return std::all_of(row, row + frame.width(), [](QRgb pixel) { return pixel == 0; });
    };
    if (frame.isNull())
        return true;
    if (!isEmptyRow(frame.height() / 2))
        return false; // Nearly every frame shows something in its middle, so that one row is looked at.
    for (int y = 0; y < frame.height(); ++y)
        if (!isEmptyRow(y))
            return false;
    return true;
}

/// All that drawing may change, put back at the end.
class SavedState {
public:
    SavedState()
    {
        glPushAttrib(GL_ALL_ATTRIB_BITS);
        glPushClientAttrib(GL_CLIENT_ALL_ATTRIB_BITS);
    }
    ~SavedState()
    {
        glPopClientAttrib();
        glPopAttrib();
    }
    SavedState(const SavedState&) = delete;
    SavedState& operator=(const SavedState&) = delete;
};

/// Pixels a side that are drawn at once.
int largestFrame(OpenGLDevice& device)
{
    GLint most = 0;
    if (device.makeCurrent())
        glGetIntegerv(GL_MAX_TEXTURE_SIZE, &most);
    return std::clamp(int(most), 64, kLargestFrame);
}

/// Of a frame of `pixels`, so that the tile fills what is drawn into.
void setProjection(QSize pixels, const QRect& tile, double x, double y, double z)
{
    const double width = tile.width(), height = tile.height();
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glTranslated(
        (pixels.width() - 2 * tile.x() - width) / width, (pixels.height() - 2 * tile.y() - height) / height, 0);
    glScaled(pixels.width() / width, pixels.height() / height, 1);
    glScaled(x, y, z);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

} // namespace

MyOGLView::MyOGLView(QWidget* parent)
    : QWidget(parent)
{
    installAccessibleCanvas();
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("3D picture"));
    setAccessibleDescription(tr("Drag to turn. The arrow keys turn it as well."));
}

MyOGLView::~MyOGLView() = default;

void MyOGLView::awakeFromNib()
{
    if (m_inited)
        return;
    m_inited = true;
    connect(&NotificationCenter::defaultCenter(), &NotificationCenter::UpdateOpenGLView, this, &MyOGLView::redraw);
}

void MyOGLView::setController(OGLViewMaster* master)
{
    controller = master;
    redraw();
}

BaseEffect* MyOGLView::effect() const { return controller ? controller->getCurrent3DEffect() : nullptr; }

bool MyOGLView::isUsable()
{
    if (!m_device)
        m_device = OpenGLDevice::shared();
    return m_device->isUsable();
}

void MyOGLView::redraw()
{
    m_shown = {};
    update();
}

// --- drawing ---

QImage MyOGLView::drawnFrame(QSize pixels, qreal scale)
{
    if (pixels.isEmpty() || !isUsable())
        return {};
    if (!m_frame)
        m_frame = std::make_unique<OpenGLFrame>(m_device);
    const int largest = largestFrame(*m_device), side = std::min(kTile, largest);
    if (std::max(pixels.width(), pixels.height()) <= largest)
        return drawnTile(pixels, QRect({0, 0}, pixels), scale);
    QImage frame(pixels, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&frame); // inactive when there was no memory for the frame
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (int y = 0; y < pixels.height() && !frame.isNull(); y += side)
        for (int x = 0; x < pixels.width(); x += side) {
            const QRect tile = QRect(x, y, side, side).intersected(QRect({0, 0}, pixels));
            const QImage part = drawnTile(pixels, tile, scale);
            if (part.isNull())
                return {};
            painter.drawImage(x, pixels.height() - y - tile.height(), part);
        }
    return frame;
}

QImage MyOGLView::drawnTile(QSize pixels, const QRect& tile, qreal scale)
{
    if (!m_frame->begin(tile.size()))
        return {};
    {
        const SavedState saved;
        if (m_device->samples() > 0)
            glEnable(GL_MULTISAMPLE);
        glLineWidth(float(scale));
        m_picture = PictureTexture::of(controller ? controller->backImage() : CIImage(), pixels);
        if (BaseEffect* current = effect())
            drawEffect(*current, pixels, tile);
        else
            drawBackImg(pixels, tile);
    }
    return m_frame->end();
}

void MyOGLView::drawEffect(BaseEffect& effect, QSize pixels, const QRect& tile)
{
    const double shorter = std::min(pixels.width(), pixels.height());
    setProjection(pixels, tile, shorter / pixels.width(), shorter / pixels.height(), kDepthScale);
    effect.draw();
}

void MyOGLView::drawBackImg(QSize pixels, const QRect& tile)
{
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    if (!m_picture)
        return;
    setProjection(pixels, tile, 1, 1, 1);
    glDisable(GL_DEPTH_TEST);
    glDisable(GL_CULL_FACE);
    glDepthMask(GL_FALSE);
    glDisable(GL_DITHER);
    glDisable(GL_BLEND);
    glEnable(GL_TEXTURE_2D);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glTexEnvi(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_DECAL);
    m_picture->bind(GL_CLAMP_TO_EDGE);
    const auto corner = [](double s, double t, double x, double y) {
        glTexCoord2d(s, t);
        glVertex2d(x, y);
    };
    glBegin(GL_QUADS);
    corner(0, 1, -kPictureEdge, -kPictureEdge);
    corner(1, 1, kPictureEdge, -kPictureEdge);
    corner(1, 0, kPictureEdge, kPictureEdge);
    corner(0, 0, -kPictureEdge, kPictureEdge);
    glEnd();
    glFlush();
}

QSize MyOGLView::pixelsAt(qreal scale) const { return {int(width() * scale), int(height() * scale)}; }

/// Where the processor draws for a fine screen, turning is smoother with a pixel a point; it ends with a fine frame.
void MyOGLView::drawShown()
{
    const bool turns = m_mouseTurns || m_keysTurn;
    const qreal scale = turns && m_isSlow ? std::min(devicePixelRatioF(), 1.0) : devicePixelRatioF();
    QElapsedTimer timer;
    timer.start();
    m_shown = drawnFrame(pixelsAt(scale), scale);
    m_isBlank = isBlank(m_shown);
    if (scale == devicePixelRatioF())
        m_isSlow = timer.elapsed() > kSlowFrame;
}

void MyOGLView::endTurn()
{
    if (m_isSlow && devicePixelRatioF() > 1)
        redraw();
}

void MyOGLView::paintEvent(QPaintEvent*)
{
    if (m_shown.isNull())
        drawShown();
    QPainter painter(this);
    painter.drawImage(rect(), m_shown);
    if (m_isBlank && m_picture && effect())
        drawHint(painter);
    if (m_showsFocus) {
        painter.setPen(QPen(Appearance::shared().look().accentMark, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
}

/// Some bodies show their open side or their back at first: nothing.
void MyOGLView::drawHint(QPainter& painter) const
{
    painter.setPen(Look::light().secondaryText); // on paper in both looks
    painter.drawText(
        rect(), Qt::AlignCenter | Qt::TextWordWrap, tr("Nothing is to be seen from this side. Drag to turn it."));
}

void MyOGLView::resizeEvent(QResizeEvent*) { m_shown = {}; }

QImage MyOGLView::ogl_shot()
{
    QImage shot = drawnFrame(pixelsAt(devicePixelRatioF()), devicePixelRatioF());
    shot.setDevicePixelRatio(devicePixelRatioF());
    return shot;
}

CIImage MyOGLView::ogl_shot_CI() { return shotOfSize(size()); }

CIImage MyOGLView::shotOfSize(QSize pixels)
{
    const QImage shot = drawnFrame(pixels, double(pixels.width()) / width());
    if (shot.isNull())
        return {};
    return CIImage::fromBitmap(CIBitmap(shot.constBits(), shot.width(), shot.height(), std::size_t(shot.bytesPerLine()),
        CIFormat::BGRA8, CIAlpha::Premultiplied, CIColorSpace::SRGB, std::make_shared<const QImage>(shot)));
}
