#include "host/window/notices.h"

#include "host/files/visibletext.h"

void Notices::add(const QString &line)
{
    const QString shown = visibleLine(line);
    if (m_lines.contains(shown)) {
        return;
    }
    qWarning("%s", qUtf8Printable(shown));
    m_lines.append(shown);
    Q_EMIT textChanged();
}

void Notices::dismiss()
{
    m_lines.clear();
    Q_EMIT textChanged();
}
