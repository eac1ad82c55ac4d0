#pragma once

#include <string>

namespace barvon {

/// Keeps the toolkit from loading plugins out of the folders `platforms`, `imageformats` and so on
/// beside the program, where whoever can write its folder could have put one. The system's plugins
/// and those of QT_PLUGIN_PATH stay. To be called before the application is made, which loads the
/// first of them. A `qt.conf` beside the program is not read in any case: one is built in.
void Load_No_Plugins_From(const std::string& program_folder);

/// The toolkit's dialogs neither read nor write a file of settings from here on.
void Keep_No_Toolkit_Settings();

}  // namespace barvon
