#ifndef WINDOW_RESTOREDTASK_H
#define WINDOW_RESTOREDTASK_H

#include "host/queue/keptqueue.h"
#include "host/window/task.h"

/*! What is kept of a task. A running one counts as interrupted: only its end could change that. */
[[nodiscard]] KeptTask keptTask(const Task &task);
/*! The task, as far as it was kept; its file is still to be read. */
[[nodiscard]] Task restoredTask(const KeptTask &kept);

#endif
