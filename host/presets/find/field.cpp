#include "host/presets/find/field.h"

#include <array>

namespace {

const std::array<QString, fieldCount> &names()
{
    static const std::array<QString, fieldCount> all = {
        QStringLiteral("format"),   QStringLiteral("title"),      QStringLiteral("extension"),
        QStringLiteral("codec"),    QStringLiteral("size"),       QStringLiteral("purpose"),
        QStringLiteral("bitrate"),  QStringLiteral("frame rate"), QStringLiteral("kind"),
        QStringLiteral("category"), QStringLiteral("note")};
    return all;
}

} // namespace

QString nameOf(Field field)
{
    return names().at(size_t(field));
}

std::optional<Field> fieldNamed(const QString &name)
{
    for (int each = 0; each < fieldCount; ++each) {
        if (names().at(size_t(each)) == name) {
            return Field(each);
        }
    }
    return {};
}
