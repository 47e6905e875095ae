#ifndef QUEUE_PLANNEDJOB_H
#define QUEUE_PLANNEDJOB_H

#include "host/convert/conversion.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QVariantMap>

/*!
 * A job as one line of a plan, which any machine can run that has the source: a JSON object with
 * the whole preset, so that it needs no configuration.
 */
struct PlannedJob
{
    Q_DECLARE_TR_FUNCTIONS(PlannedJob)
public:
    QString source;          //!< absolute, or relative to the folder where it is run
    QString target;          //!< likewise; the name is fixed
    QVariantMap preset;      //!< as FormatDetailModelData::toVarMap() makes it
    OutputSettings settings; //!< the preset's, with the choices that are made besides
    bool keepDates = false;
    double cost = 0; //!< what it takes, compared with other jobs of the plan: the source's bytes

    /*! The job of \a line; an error says what is wrong with it. */
    [[nodiscard]] static Result<PlannedJob> fromLine(const QByteArray &line);
    /*! Without the line break. */
    [[nodiscard]] QByteArray toLine() const;

    [[nodiscard]] ConversionJob conversion(OutputTarget::IfExists ifExists) const;
};

#endif
