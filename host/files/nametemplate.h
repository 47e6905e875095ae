#ifndef FILES_NAMETEMPLATE_H
#define FILES_NAMETEMPLATE_H

#include "host/error.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

/*! A file's base name with fields in braces, such as "{name}-{width}", that are filled one by one.
 */
class NameTemplate
{
    Q_DECLARE_TR_FUNCTIONS(NameTemplate)
public:
    /*! The empty name. */
    NameTemplate() = default;

    /*! The template that \a text describes; an error names a field that isn't among \a fields, or
     *  a character that no name can have. */
    [[nodiscard]] static Result<NameTemplate> fromText(const QString &text,
                                                       const QStringList &fields);
    /*! The first field of \a text that isn't among \a fields; null if there is none. */
    [[nodiscard]] static QString unknownField(const QString &text, const QStringList &fields);
    /*! This very name, whatever characters it has. */
    [[nodiscard]] static NameTemplate literal(const QString &name);

    /*! Puts \a value in the place of \a field. What a name can't hold becomes "_". */
    void fill(const QString &field, const QString &value);

    [[nodiscard]] bool isEmpty() const { return m_pieces.isEmpty(); }
    /*! Whether no field is left. */
    [[nodiscard]] bool isComplete() const;
    /*! The name; fields that are left stand in braces. */
    [[nodiscard]] QString text() const;

private:
    struct Piece
    {
        QString text;
        bool isField = false;
    };

    QVector<Piece> m_pieces;
};

#endif
