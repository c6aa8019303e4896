#pragma once
// Qt's own texts (the buttons of message boxes, the file dialogs) in Japanese, as the
// rest of the program speaks.

// Installs Qt's Japanese translation into the running application; false when the
// translation files are missing, and Qt then speaks English.
bool InstallQtJapanese();
