#include "app/document/Alone.h"

#include <tbb/task_arena.h>

void runAlone(const std::function<void()>& work) { tbb::task_arena(1).execute(work); }
