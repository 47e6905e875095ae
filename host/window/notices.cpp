#include "host/window/notices.h"

void Notices::add(const QString &line)
{
    if (m_lines.contains(line)) {
        return;
    }
    qWarning("%s", qUtf8Printable(line));
    m_lines.append(line);
    Q_EMIT textChanged();
}

void Notices::dismiss()
{
    m_lines.clear();
    Q_EMIT textChanged();
}
