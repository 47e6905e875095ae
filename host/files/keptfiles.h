#ifndef FILES_KEPTFILES_H
#define FILES_KEPTFILES_H

#include <QString>

#include <unordered_set>

/*!
 * The files of one run that none of its outputs may replace: its sources, and the outputs before.
 * Takes a few bytes per file, so that a run of 100,000 files fits into memory.
 */
class KeptFiles
{
public:
    /*! An existing file, under whatever name. */
    void addFile(const QString &path);
    /*! The name of a file to come. */
    void addName(const QString &path);
    [[nodiscard]] bool contains(const QString &path) const;

private:
    std::unordered_set<size_t> m_hashes; // of names and of files
};

/*! Whether both are the same existing file, perhaps under different names. */
[[nodiscard]] bool isSameFile(const QString &one, const QString &other);

#endif
