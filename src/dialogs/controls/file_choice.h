// The choice of a file by the platform's own dialog.
#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <string>

class QWidget;

namespace tarvis {

// Shows the dialog for opening a file over `parent` and returns the chosen path, empty if the user cancels.
// `filter` is pairs of description and patterns: "Text (*.TXT)|*.TXT|Notes|*.N;*.NOTE". The dialog starts in
// the folder of `present`, the path that was chosen before.
using FileChoice = std::function<QString(QWidget* parent, const QString& filter, const std::string& present)>;

QString ChooseFile(QWidget* parent, const QString& filter, const std::string& present);

// The filter as the toolkit takes it. Each pattern is contained twice, since file names may be in upper or
// lower case.
QString ToolkitFilter(const QString& filter);

// Whether a path is a folder. It is called in a thread of its own, which may live longer than the program's
// windows, and must not throw.
using FolderQuestion = std::function<bool(const std::filesystem::path& path)>;

bool IsFolder(const std::filesystem::path& path);

// The folder of a path; empty if there is none, or if its file system doesn't answer at once.
QString FolderOf(const std::string& path, const FolderQuestion& isFolder = IsFolder);

}  // namespace tarvis
