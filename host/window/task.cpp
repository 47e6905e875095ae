#include "host/window/task.h"

#include <QFileInfo>

bool Task::isBefore(const Task &other, SortKey key) const
{
    switch (key) {
    case BySize:
        return facts.bytes < other.facts.bytes;
    case ByDuration:
        return facts.duration < other.facts.duration;
    case ByState:
        return state < other.state;
    case ByName:
        break;
    }
    const QString name = QFileInfo(source).fileName();
    return name.localeAwareCompare(QFileInfo(other.source).fileName()) < 0;
}
