#pragma once
#include <span>
#include <string>

// One command of ortalune-tool. `args` are the words after the command's name.
struct cToolCommand {
  const char* name;
  const char* usage;
  const char* summary;
  int (*run)(std::span<const std::string> args);
};

std::span<const cToolCommand> ToolCommands();
const cToolCommand* FindToolCommand(const std::string& name);

// Exit statuses of every command.
enum : int { kToolOk = 0, kToolFailed = 1, kToolUsage = 2 };

int RunHelp(std::span<const std::string> args);
int RunResave(std::span<const std::string> args);
int RunDump(std::span<const std::string> args);
int RunReport(std::span<const std::string> args);
int RunCheck(std::span<const std::string> args);
int RunRenderMusic(std::span<const std::string> args);
int RunCsv(std::span<const std::string> args);
int RunNew(std::span<const std::string> args);
int RunRenderStage(std::span<const std::string> args);
int RunRenderWorld(std::span<const std::string> args);

// The whole program: the command named by args[0] with the rest.
int RunTool(std::span<const std::string> args);
