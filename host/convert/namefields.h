#ifndef CONVERT_NAMEFIELDS_H
#define CONVERT_NAMEFIELDS_H

#include "host/files/nametemplate.h"

#include <QString>
#include <QStringList>

/*! One conversion of a run, as far as names tell it. */
struct NamedConversion
{
    QString source;
    QString presetId;
    int number = 1; //!< among the sources, from 1
    int count = 1;  //!< of the sources; numbers are as wide as this one
};

/*! The fields that a name can have: name, preset, date, n, width and height. */
[[nodiscard]] QStringList nameFields();

/*! Fills in all fields but OutputName::pictureFields(). The date is that of the source file. */
void fillName(NameTemplate &name, const NamedConversion &conversion);

#endif
