#pragma once
// Pictures of the program's windows: the main window, the general data, some element windows
// and the error window, each as a PNG of 1280 by 800 pixels, for the documentation and for a
// look at the layout without a screen.

#include <string>
#include <vector>

namespace vardena {

class Programa;

// Opens each window in turn, writes "<n>-<name>.png" into `carpeta` and closes it again.
// Returns the files written; throws FileError when one cannot be written.
std::vector<std::string> Capturas(Programa& programa, const std::string& carpeta);

}  // namespace vardena
