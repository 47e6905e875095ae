#include "host/convert/namefields.h"

#include "host/convert/outputname.h"

#include <QDateTime>
#include <QFileInfo>

namespace {

const QLatin1String nameField("name");
const QLatin1String presetField("preset");
const QLatin1String dateField("date");
const QLatin1String numberField("n");

} // namespace

QStringList nameFields()
{
    return QStringList{nameField, presetField, dateField, numberField} +
           OutputName::pictureFields();
}

void fillName(NameTemplate &name, const NamedConversion &conversion)
{
    const QDate date = QFileInfo(conversion.source).lastModified().date();
    const int digits = QString::number(conversion.count).size();
    name.fill(nameField, baseNameOf(conversion.source));
    name.fill(presetField, conversion.presetId);
    name.fill(dateField, date.toString(Qt::ISODate));
    name.fill(numberField,
              QStringLiteral("%1").arg(conversion.number, digits, 10, QLatin1Char('0')));
}
