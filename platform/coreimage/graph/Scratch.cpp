#include "platform/coreimage/graph/Scratch.h"

#include <algorithm>
#include <new>

namespace ci {

namespace {
constexpr std::align_val_t kLine{64};
constexpr std::size_t kBlock = std::size_t(1) << 20;
constexpr std::size_t kKept = std::size_t(64) << 20; // a thread holds on to no more than this
} // namespace

void Scratch::Free::operator()(std::byte* p) const { ::operator delete(p, kLine); }

void* Scratch::bytes(std::size_t count)
{
    count = (count + 63) / 64 * 64;
    while (m_current < m_blocks.size() && m_blocks[m_current].size - m_blocks[m_current].used < count) {
        if (m_current + 1 == m_blocks.size())
            break;
        m_blocks[++m_current].used = 0;
    }
    if (m_blocks.empty() || m_blocks[m_current].size - m_blocks[m_current].used < count) {
        Block block;
        block.size = std::max(count, kBlock);
        block.memory.reset(static_cast<std::byte*>(::operator new(block.size, kLine)));
        m_blocks.push_back(std::move(block));
        m_current = m_blocks.size() - 1;
    }
    Block& block = m_blocks[m_current];
    void* room = block.memory.get() + block.used;
    block.used += count;
    return room;
}

void Scratch::rewind(Mark mark)
{
    if (m_blocks.empty())
        return;
    m_current = mark.block;
    m_blocks[m_current].used = mark.used;
    if (mark.block == 0 && mark.used == 0) {
        std::size_t kept = 0, count = 0;
        while (count < m_blocks.size() && (kept += m_blocks[count].size) <= kKept)
            ++count;
        m_blocks.resize(count);
    }
}

Scratch& Scratch::ofThread()
{
    static thread_local Scratch scratch;
    return scratch;
}

} // namespace ci
