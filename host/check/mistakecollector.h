#ifndef CHECK_MISTAKECOLLECTOR_H
#define CHECK_MISTAKECOLLECTOR_H

#include "utility/cataloguemistake.h"

#include <QSet>
#include <QVector>

/*! Collects mistakes in what is served regardless, each once. */
class MistakeCollector
{
public:
    /*! The same reason at the same place is the same mistake, even with another \a addition. */
    void note(const CataloguePlace &place, const QString &reason, const QString &addition = {});

    [[nodiscard]] QVector<CatalogueMistake> mistakes() const { return m_mistakes; }

private:
    QVector<CatalogueMistake> m_mistakes;
    QSet<QString> m_noted;
};

#endif
