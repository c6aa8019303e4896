#include "command_table.h"

#include <array>
#include <cstdio>

#include "record_types.h"

namespace {

const std::array kCommands = {
    cToolCommand{"help", "help", "this list of commands and record types", &RunHelp},
    cToolCommand{"resave", "resave [--type TYPE] [--no-project] FILE [OUT]",
                 "read a record file of any version and write it at the current version (to OUT, or in place); "
                 "the tables of the project in the current directory are loaded first",
                 &RunResave},
    cToolCommand{"dump", "dump [--type TYPE] FILE",
                 "print a record file of any version as readable text, one field a line with the record "
                 "class's own name for it; fit for a version control diff (see the README)",
                 &RunDump},
    cToolCommand{"new", "new DIR",
                 "make a new project in DIR (new or empty) from the bundled template: a small game with its "
                 "database, a sample stage, the world map, pictures, sounds and music",
                 &RunNew},
    cToolCommand{"check", "check [--repairs] [DIR]",
                 "load the project in DIR as the editor does and show each message it would; changes nothing; "
                 "--repairs lists every reference the load repaired or a save would repair, file by file",
                 &RunCheck},
    cToolCommand{"report", "report [DIR]",
                 "write the report log the editor starts with (Report_Editor.txt) in DIR, and print it", &RunReport},
    cToolCommand{"render-stage", "render-stage FILE.stg2 OUT.png",
                 "draw the whole stage FILE of the project in the current directory, as the editor's map view "
                 "draws it with the project's own pictures, into a PNG file",
                 &RunRenderStage},
    cToolCommand{"render-world", "render-world OUT.png",
                 "draw the whole world map of the project in the current directory into a PNG file", &RunRenderWorld},
    cToolCommand{"render-music", "render-music IN OUT.wav [--seconds N]",
                 "play a MIDI or ogg file as the editor plays it, into a WAV file instead of the sound card, to "
                 "its end, or for its first N seconds",
                 &RunRenderMusic},
    cToolCommand{"csv", "csv export|import DIR LIST FILE.csv",
                 "export: write skill list LIST (numbered from 1, as in the editor) of the project in DIR, or of "
                 "the data directory DIR, to a new spreadsheet file, never overwriting one; import: read the file "
                 "into that list of the project in DIR and save its skill file (a refused file changes nothing)",
                 &RunCsv},
};

}  // namespace

std::span<const cToolCommand> ToolCommands() { return kCommands; }

const cToolCommand* FindToolCommand(const std::string& name) {
  for (const cToolCommand& command : kCommands) {
    if (name == command.name) return &command;
  }
  return nullptr;
}

int RunHelp(std::span<const std::string>) {
  std::printf("ortalune-tool: the headless companion of the Ortalune editor\n\nCommands:\n");
  for (const cToolCommand& command : kCommands) std::printf("  %-36s %s\n", command.usage, command.summary);
  std::printf("\nRecord types known to resave and dump (--type, or found from the file's name):\n");
  for (const cRecordFileType& type : RecordFileTypes()) {
    std::printf("  %-14s %-18s %s\n", type.typeName, *type.fileName ? type.fileName : type.extension, type.summary);
  }
  return kToolOk;
}

int RunTool(std::span<const std::string> args) {
  if (args.empty()) {
    RunHelp({});
    return kToolUsage;
  }
  const std::string& name = args[0];
  if (name == "--help" || name == "-h") return RunHelp({});
  const cToolCommand* command = FindToolCommand(name);
  if (command == nullptr) {
    std::fprintf(stderr, "ortalune-tool: unknown command '%s'; 'ortalune-tool --help' lists them\n", name.c_str());
    return kToolUsage;
  }
  return command->run(args.subspan(1));
}
