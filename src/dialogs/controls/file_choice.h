// The choice of a file by the platform's own dialog.
#pragma once

#include <QString>
#include <functional>

class QWidget;

namespace tarvis {

// Shows the dialog for opening a file over `parent` and returns the chosen path, empty if the user cancels.
// `filter` is pairs of description and patterns: "Text (*.TXT)|*.TXT|Notes|*.N;*.NOTE".
using FileChoice = std::function<QString(QWidget* parent, const QString& filter)>;

QString ChooseFile(QWidget* parent, const QString& filter);

// The filter as the toolkit takes it. Each pattern stands there twice, since file names may be of either
// case.
QString ToolkitFilter(const QString& filter);

}  // namespace tarvis
