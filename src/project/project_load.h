#pragma once
// Loading the project: every file of the table, in a fixed order, each with its rule
// for failure. The order is part of the behaviour: records read the tables loaded
// before them, and some steps test g_nFileVersion right after the file they concern.

#include <span>
#include <vector>

struct cProjectFile;

enum eFailRule {
  kFailStops,    // the load ends with the failure message of the file
  kFailIgnored,  // the step's follow-up deals with the missing file
};

struct cLoadStep {
  const char* path;              // stored path of the file; null for a step that reports its own failures
  int (*load)(const char* path); // 1 when loaded
  eFailRule failRule;
  void (*after)(int loaded);     // numbering, fallbacks and migrations that follow the load; may be null
  bool bImages = false;          // reads image sheets rather than records
  const cProjectFile* file = nullptr;  // the one record file the step reads, if so
};

std::span<const cLoadStep> ProjectLoadSteps();

// The record files the load reads by their fixed paths, in its order; the stages are
// not among them.
std::vector<const cProjectFile*> ProjectRecordFiles();

// 1 when the whole project loaded; 0 after the message of the step that failed.
int LoadProject();
// The same without the image sheets, for tools that only need the tables.
int LoadProjectRecords();

// The message for a project file that did not load, chosen by g_bFileTooNew right after
// the failure: to the report log and into a box.
void ReportLoadFailure(const char* storedPath);

// What the start-up shows when the project load failed.
void ShowProjectLoadFailed();
