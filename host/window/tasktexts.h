#ifndef WINDOW_TASKTEXTS_H
#define WINDOW_TASKTEXTS_H

#include "host/window/task.h"

// What the list says of a task, with numbers as the user's language writes them.

/*! "1280 × 720  ·  1:05  ·  2.0 MB"; what is unknown is left out. */
[[nodiscard]] QString detailsOf(const MediaFacts &facts);
/*! "h264, aac" */
[[nodiscard]] QString codecsOf(const MediaFacts &facts);
/*! "song.mp3  ·  2.0 MB, 40 % smaller"; empty if there is no new file. */
[[nodiscard]] QString resultOf(const Task &task);
/*! "45 %  ·  2.5×  ·  0:12 left"; what is unknown is left out. */
[[nodiscard]] QString runningText(const Progress &progress);
/*! "10,000" */
[[nodiscard]] QString countText(int count);
/*! "2.0 MB" */
[[nodiscard]] QString sizeText(double bytes);

#endif
