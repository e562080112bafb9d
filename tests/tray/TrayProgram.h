#pragma once

namespace vantorel::test {

/// The program under test: a QApplication with the real status bar, application and workspace, which does
/// what it reads from the pipe named in the environment variable TRAY_PROGRAM_COMMANDS, one command a line,
/// and writes what happens to its standard output. Its commands:
///
///     item                    makes the status item with the icon and the menu "mapping off"
///     menu on|off             replaces the menu
///     drop                    destroys the status item
///     policy regular|accessory
///     show|hide TITLE         a window
///     palette dark|light
///     open ADDRESS
///     terminate
int runTrayProgram(int argumentCount, char** arguments);

}  // namespace vantorel::test
