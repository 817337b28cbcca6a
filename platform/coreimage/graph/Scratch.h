// Memory for the rows and buffers of one tile.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

namespace ci {

/// A stack of 64-byte aligned blocks that is kept from tile to tile, so that a warm render allocates nothing.
class Scratch {
public:
    /// Uninitialised room for `count` floats and a batch more. Throws std::bad_alloc.
    float* floats(std::size_t count) { return static_cast<float*>(bytes((count + 16) * sizeof(float))); }
    void* bytes(std::size_t count);

    struct Mark {
        std::size_t block, used;
    };
    Mark mark() const { return {m_current, m_blocks.empty() ? 0 : m_blocks[m_current].used}; }
    /// Gives back everything allocated since the mark.
    void rewind(Mark);

    /// The scratch of this thread.
    static Scratch& ofThread();

private:
    struct Free {
        void operator()(std::byte*) const;
    };
    struct Block {
        std::unique_ptr<std::byte, Free> memory;
        std::size_t size = 0, used = 0;
    };
    std::vector<Block> m_blocks;
    std::size_t m_current = 0;
};

/// Rewinds the scratch when it goes out of scope.
class ScratchScope {
public:
    explicit ScratchScope(Scratch& s)
        : m_scratch(s)
        , m_mark(s.mark())
    {
    }
    ~ScratchScope() { m_scratch.rewind(m_mark); }
    ScratchScope(const ScratchScope&) = delete;
    ScratchScope& operator=(const ScratchScope&) = delete;

private:
    Scratch& m_scratch;
    Scratch::Mark m_mark;
};

} // namespace ci
