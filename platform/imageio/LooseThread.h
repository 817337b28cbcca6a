// Threads that nobody waits for.
#pragma once

#include <functional>

namespace imageio {

/// Runs `work` on a thread of its own, which may hang for as long as it likes: at a slow disk, in an endless drawing.
/// `work` owns all that it uses, and throws nothing.
void runOnLooseThread(std::function<void()> work);

/// To be called when the result of such a thread isn't wanted any more. If it is still at work when the program ends,
/// the program ends at once: what the libraries keep would be taken away under the thread.
void giveUpLooseThread();

} // namespace imageio
