#ifndef FILES_PENDINGFILE_H
#define FILES_PENDINGFILE_H

#include <QCoreApplication>
#include <QString>

/*! A file that has a hidden name until it is complete. */
class PendingFile
{
    Q_DECLARE_TR_FUNCTIONS(PendingFile)
    Q_DISABLE_COPY(PendingFile)

public:
    PendingFile() = default;
    ~PendingFile() { discard(); }

    /*! Makes the empty file in \a folder. Returns why that can't be, or an empty text. */
    [[nodiscard]] QString create(const QString &folder);
    [[nodiscard]] QString path() const { return m_path; }
    /*! Removes the file, so that nothing half-written stays; so does the destructor. */
    void discard();

    /*! Takes the place of \a path, whatever is there. False leaves all as it was. */
    [[nodiscard]] bool publishOver(const QString &path);
    /*!
     * Takes the first free name of freeName() in its folder and returns the path, or an empty text
     * when there is none to be had. A file that appears there at the same time is left alone.
     */
    [[nodiscard]] QString publish(const QString &baseName, const QString &extension);

private:
    QString m_path;
};

/*! "name.ext" in \a folder where that is free, else "name (2).ext", "name (3).ext" and so on. */
[[nodiscard]] QString freeName(const QString &folder, const QString &baseName,
                               const QString &extension);

#endif
