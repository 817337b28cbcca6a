// The arithmetic of a strip of equal items that is paged through.
#pragma once

#include <algorithm>

/// Positions are points from the strip's left end. Item i lies at i times the pitch.
struct StripPaging {
    int pitch = 51;
    int pageCount = 0; // items
    int current_page = 0; // the first item shown
    int view_page_count = 0; // items that fit

    void setPageCount(int count, double visibleWidth)
    {
        pageCount = count;
        view_page_count = int(visibleWidth / pitch);
        current_page = std::clamp(current_page, 0, std::max(0, pageCount - view_page_count));
    }
    int maxShownPage() const { return view_page_count + current_page; }
    double documentWidth(double contentWidth) const { return std::max(double(pitch * (pageCount + 1)), contentWidth); }

    bool hidesPrevious(double origin) const { return origin == 0; }
    bool hidesNext(double origin, double visibleWidth) const { return origin + visibleWidth >= pitch * pageCount; }
    /// One further than there are items: the last step may show an empty place.
    void boundAfterStep()
    {
        if (maxShownPage() > pageCount + 1)
            current_page = pageCount + 1 - view_page_count;
    }
    /// Leaves no place empty that an item could fill.
    void pullBack() { current_page = std::max(0, std::min(current_page, pageCount - view_page_count)); }
    /// Whether an item needs a step to be seen well: 1 for the next, -1 for the previous.
    int stepToShow(int index, double origin, double visibleWidth) const
    {
        const double x = index * pitch;
        if (x + 1.5 * pitch > origin + visibleWidth)
            return 1;
        return x - 0.5 * pitch < origin ? -1 : 0;
    }
};

/// Moves in equal steps, beyond the target and back to it in the last one.
class StripAnimation {
public:
    StripAnimation(double start, double target, double documentWidth, double visibleWidth)
        : m_origin(start)
        , m_target(target)
        , m_steps(documentWidth - visibleWidth < 101 ? 8 : 13)
        , m_step((target - start) / m_steps)
    {
    }

    double target() const { return m_target; }
    bool isDone() const { return m_done; }
    /// Where the strip's visible part begins after the next tick.
    double tick()
    {
        m_origin += m_step;
        m_done = m_count++ >= m_steps + m_steps / 5;
        return m_done ? m_target : m_origin;
    }

private:
    double m_origin, m_target;
    int m_steps;
    double m_step;
    int m_count = 0;
    bool m_done = false;
};
