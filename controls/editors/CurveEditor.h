// Curves of filters that give each brightness another one.
#pragma once

#include "controls/editors/CurveCanvas.h"
#include "controls/editors/InputEditor.h"
#include "platform/coreimage/CIImage.h"

class QButtonGroup;
class QHBoxLayout;
class QLabel;

/// Points over the histogram of the picture. The curve that is drawn is what the filter makes of greys, in display
/// values. Subclasses say what the points are, and call `build` when they are made.
class CurveEditor : public InputEditor {
    Q_OBJECT
public:
    void showValues() override;

protected:
    using Points = std::vector<QPointF>;

    /// `keys` are the inputs that the curves are made of.
    CurveEditor(const EditedInput& input, std::vector<std::string> keys, QWidget* parent);
    /// With buttons for red, green and blue, unless there is one curve for all.
    void build(bool hasChannels);

    /// Of a channel: 0 is red. Sorted, in display values.
    virtual Points points(std::size_t channel) const = 0;
    virtual void setPoints(std::size_t channel, const Points& points) = 0;
    /// As near to `to` as the point can be.
    virtual QPointF allowed(const Points& points, std::size_t index, const QPointF& to) const = 0;
    virtual QPointF standardPoint(std::size_t index) const = 0;

    const std::vector<std::string> m_keys;

private:
    void addChannels(QHBoxLayout& line);
    /// The channels that are edited.
    std::vector<std::size_t> channels() const;
    Points shownPoints() const;
    void move(std::size_t index, const QPointF& to);
    void resetPoint(std::size_t index);
    void resetAll();
    void describe();
    void countLevels();
    std::vector<CurveCanvas::Line> lines() const;

    CurveCanvas* m_canvas = nullptr;
    QButtonGroup* m_channel = nullptr; // null with one curve
    QLabel* m_description = nullptr;
    CIImage m_counted;
    Histogram m_histogram;
};

/// Points that are inputs of their own.
class ToneCurveEditor : public CurveEditor {
    Q_OBJECT
public:
    ToneCurveEditor(const EditedInput& input, QWidget* parent);

protected:
    Points points(std::size_t channel) const override;
    void setPoints(std::size_t channel, const Points& points) override;
    QPointF allowed(const Points& points, std::size_t index, const QPointF& to) const override;
    QPointF standardPoint(std::size_t index) const override;
};

/// Curves whose points stay where they are across.
class ChannelCurveEditor : public CurveEditor {
    Q_OBJECT
protected:
    using CurveEditor::CurveEditor;
    QPointF allowed(const Points& points, std::size_t index, const QPointF& to) const override
    {
        return {points[index].x(), to.y()};
    }
    QPointF standardPoint(std::size_t index) const override
    {
        const double x = points(0)[index].x();
        return {x, x};
    }
};

/// A table of red, green and blue, through five points each. A table of another making keeps its shape until a point is
/// moved.
class ToneTableEditor : public ChannelCurveEditor {
    Q_OBJECT
public:
    ToneTableEditor(const EditedInput& input, QWidget* parent);

protected:
    Points points(std::size_t channel) const override;
    void setPoints(std::size_t channel, const Points& points) override;
};

/// Cubics in linear light, each through four points.
class PolynomialEditor : public ChannelCurveEditor {
    Q_OBJECT
public:
    PolynomialEditor(const EditedInput& input, QWidget* parent);

protected:
    Points points(std::size_t channel) const override;
    void setPoints(std::size_t channel, const Points& points) override;
};
