// What a process that reads pictures may do.
#pragma once

namespace imageio {

/// Memory, processor time, files: to be called first.
void limitResources();

enum class Sight { FileAlone, Fonts };

/// From now on this process opens nothing (but, to read them, fonts and what belongs to them), makes no sockets and no
/// processes, and sees no other process. For good. What the system lacks of it is left out, with a line in the log.
/// There must be no other thread.
void closeSandbox(Sight, int socket);

} // namespace imageio
