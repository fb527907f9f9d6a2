// The bar at the foot of the window that shows where a file was saved.
#pragma once

#include <QWidget>

class QLabel;

namespace tarvis {

class SavedBar : public QWidget {
  Q_OBJECT
 public:
  explicit SavedBar(QWidget* parent = nullptr);

  // Shows the bar for the file at `path`.
  void Show(const QString& path);

 private:
  QString path_;
  QLabel* message_;
};

}  // namespace tarvis
