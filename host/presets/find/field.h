#ifndef PRESETS_FIND_FIELD_H
#define PRESETS_FIND_FIELD_H

#include <QString>

#include <optional>

/*! What of a preset a word can match; a match in an earlier one counts more. */
enum class Field : quint8 {
    Format,
    Title,
    Extension,
    Codec,
    Size,
    Purpose,
    Bitrate,
    FrameRate,
    Kind,
    Category,
    Note,
};
constexpr int fieldCount = int(Field::Note) + 1;

/*! The name that users and the file of synonyms have for it: "format", "frame rate", ... */
[[nodiscard]] QString nameOf(Field field);
/*! Nothing for a name that no field has. */
[[nodiscard]] std::optional<Field> fieldNamed(const QString &name);

#endif
