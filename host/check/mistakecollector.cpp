#include "host/check/mistakecollector.h"

void MistakeCollector::note(const CataloguePlace &place, const QString &reason,
                            const QString &addition)
{
    const QString text = CatalogueMistake{place, reason}.text();
    if (!m_noted.contains(text)) {
        m_noted.insert(text);
        m_mistakes.append({place, reason + addition, true});
    }
}
