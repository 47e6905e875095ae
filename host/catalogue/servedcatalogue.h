#ifndef CATALOGUE_SERVEDCATALOGUE_H
#define CATALOGUE_SERVEDCATALOGUE_H

#include "host/catalogue/overlays.h"
#include "host/error.h"

#include <QCoreApplication>

#include <functional>

/*! The catalogue with the overlays of a configuration folder: DIR/catalogues/ *.json, in the order
 * of their names. */
class ServedCatalogue
{
    Q_DECLARE_TR_FUNCTIONS(ServedCatalogue)

public:
    /*! \a configFolder is absolute. */
    explicit ServedCatalogue(const QString &configFolder);

    [[nodiscard]] bool hasOverlays() const { return !m_files.isEmpty(); }
    /*! The catalogue at \a path, a file or folder, with the overlays. */
    [[nodiscard]] OverlaidCatalogue read(const QString &path) const;

    /*!
     * Lets the library have the catalogue with the overlays; to be called before the library first
     * asks for the catalogue. Without overlays nothing is done. \a report gets a line if something
     * is left out. The aliases are returned.
     */
    PresetAliases serve(const std::function<void(const QString &)> &report) const;
    /*! Likewise for a catalogue that is read already. An error says why it isn't served. */
    [[nodiscard]] static Result<> serve(const ExportCatalogue &catalogue);

private:
    QStringList m_files; //!< of the overlays: absolute paths
};

#endif
