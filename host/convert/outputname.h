#ifndef CONVERT_OUTPUTNAME_H
#define CONVERT_OUTPUTNAME_H

#include "host/error.h"
#include "host/files/keptfiles.h"
#include "host/files/nametemplate.h"

#include <QCoreApplication>
#include <QSize>
#include <QString>

#include <memory>

class PendingFile;

/*! Where the output of a conversion goes, and under which name. */
struct OutputTarget
{
    /*! What happens if the name is in use. */
    enum class IfExists {
        Rename, //!< the output gets " (2)", " (3)" ...
        Skip,   //!< nothing is converted
        Overwrite,
        Fail
    };

    QString folder;    //!< empty: the source's
    NameTemplate name; //!< with the fields of OutputName, or none; empty: the source's
    IfExists ifExists = IfExists::Rename;
    bool makesFolder = false; //!< where it is missing
    std::shared_ptr<KeptFiles> kept =
        {}; //!< of the run; names that are given are added. May be null
};

/*! The source's name without its extension; all of it if there is nothing else. */
[[nodiscard]] QString baseNameOf(const QString &source);

/*! The target with this very \a path. */
[[nodiscard]] OutputTarget fixedOutput(const QString &path, OutputTarget::IfExists ifExists);

/*!
 * Gives the output of one conversion its name. Neither the source nor a kept file is ever replaced
 * or taken for an earlier result: where one is in the way, the output gets the next name.
 */
class OutputName
{
    Q_DECLARE_TR_FUNCTIONS(OutputName)
public:
    /*! The fields of OutputTarget::name that are only known with the source: its output's width
     *  and height in pixels. */
    [[nodiscard]] static QStringList pictureFields();

    OutputName(const QString &source, const OutputTarget &target, const QString &extension);

    /*! Fills the fields in. */
    void setPicture(const QSize &size);
    /*! Whether no field is left, so that choose() can be called. */
    [[nodiscard]] bool isComplete() const { return m_name.isComplete(); }

    /*! Absolute. */
    [[nodiscard]] QString folder() const;

    /*! Chooses the path and keeps it from the later outputs of the run. An error if it is in use
     *  and may not be. */
    [[nodiscard]] Result<> choose();
    /*! Empty before choose(). */
    [[nodiscard]] QString path() const { return m_path; }
    /*! Whether there is a file already, and nothing is to be converted. */
    [[nodiscard]] bool isSkipped() const { return m_isSkipped; }

    /*! Gives the complete output its name; path() tells it afterwards. */
    [[nodiscard]] Result<> publish(PendingFile &output);

private:
    [[nodiscard]] bool isUnfree(const QString &path) const;
    [[nodiscard]] Result<> findInUse();

    QString m_source;
    OutputTarget m_target;
    QString m_extension;
    NameTemplate m_name;
    QString m_path;
    bool m_isSkipped = false;
};

#endif
