#include "formats/models/presetfields_p.h"

#include <algorithm>

namespace PresetFields {

namespace {

void assign(QString &member, const QVariant &value)
{
    member = value.toString();
}
void assign(bool &member, const QVariant &value)
{
    member = value.toBool();
}
void assign(QVariantList &member, const QVariant &value)
{
    member = listOf(value);
}
void assign(QVariantMap &member, const QVariant &value)
{
    member = value.toMap();
}

} // namespace

const Field *ofRole(int role)
{
    const auto field =
        std::find_if(all.begin(), all.end(), [role](const Field &f) { return f.role == role; });
    return role == noRole || field == all.end() ? nullptr : &*field;
}

const Field &of(const Member &member)
{
    return *std::find_if(all.begin(), all.end(),
                         [&member](const Field &field) { return field.member == member; });
}

const QString &key(const Field &field)
{
    static const auto keys = [] {
        std::array<QString, all.size()> texts;
        for (std::size_t i = 0; i < all.size(); ++i) {
            texts[i] = QLatin1String(all[i].key);
        }
        return texts;
    }();
    return keys[std::size_t(&field - all.data())];
}

QVariant read(const Preset &preset, const Member &member)
{
    return std::visit([&preset](auto field) { return QVariant(preset.*field); }, member);
}

QVariantList listOf(const QVariant &value)
{
    // Qt 6 would split a text into its characters.
    const int type = value.userType();
    return type == QMetaType::QString || type == QMetaType::QByteArray ? QVariantList()
                                                                       : value.toList();
}

void write(Preset &preset, const Member &member, const QVariant &value)
{
    std::visit([&](auto field) { assign(preset.*field, value); }, member);
}

} // namespace PresetFields
