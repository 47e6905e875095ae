#ifndef COMMANDLINE_FAVORITES_H
#define COMMANDLINE_FAVORITES_H

#include "host/presets/favorites.h"
#include "host/presets/presetstore.h"

/*! The favourites beside these presets. A file that can't be read is reported, and counts as
 *  empty. */
[[nodiscard]] Favorites favoritesOf(const PresetStore &store);

#endif
