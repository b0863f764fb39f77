#pragma once
// A saved case opened in a fresh tool, as File Open would: loaded, activated,
// then read. True when the tool took the file.

#include <string>

template <typename Tool>
bool reopenIn(Tool& tool, const std::string& path)
{
    tool.Form_Load();
    tool.Form_Activate();
    tool.setStrFileName(path);
    return tool.OpenSaveData("Open");
}
