// A preview window on the test's display, driven by keys and mouse.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>
#include <functional>

#include "preview/document_builder.h"
#include "preview/pages/page_view.h"
#include "preview/window/preview_window.h"

namespace tarvis {

class WindowTest : public testing::Test {
 protected:
  void Open(std::shared_ptr<const Document> document) {
    PreviewSetup setup;
    setup.Tools = {{"Editing of the Printing Items", 999}};
    setup.Origin = {
        .Author = QStringLiteral("Korvane"), .DataFile = QStringLiteral("axis1.prm"), .ReadData = readData_};
    setup.Memory = memory_;
    window_ = std::make_unique<PreviewWindow>(std::move(document), setup);
    window_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }
  void OpenTable(int pages) { Open(DocumentBuilder().TablePages(pages).Build()); }

  // A part of the window by its object name.
  template <typename Part>
  Part& Find(const char* name) {
    auto* widget = window_->findChild<Part*>(QString::fromLatin1(name));
    if (widget == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *widget;
  }
  void Click(const char* name) { QTest::mouseClick(&Find<QToolButton>(name), Qt::LeftButton); }
  // A key press where the focus is, as from a keyboard.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : window_.get(), key, modifiers);
  }
  // A dialog has closed: the window gets the keys again.
  void Return() {
    window_->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  }
  void Type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text)); }

  // Opens the find bar and types there.
  void SearchFor(const char* text) {
    Press(Qt::Key_F, Qt::ControlModifier);
    Type(text);
  }
  void Drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* viewport = View().viewport();
    QTest::mousePress(viewport, Qt::LeftButton, modifiers, from);
    QTest::mouseMove(viewport, (from + to) / 2);
    QTest::mouseMove(viewport, to);
    QTest::mouseRelease(viewport, Qt::LeftButton, modifiers, to);
  }
  // Copies what is selected, and returns the text on the clipboard.
  QString CopiedText() {
    Press(Qt::Key_C, Qt::ControlModifier);
    return QApplication::clipboard()->text();
  }

  PageView& View() { return window_->View(); }
  int Page() { return View().CurrentPage(); }
  int Percent() { return qRound(View().Layout().Zoom() * 100); }
  // Where a place of a page (twips) is in the view.
  QPoint At(int page, double x, double y) {
    const PageLayout& layout = View().Layout();
    const QPointF offset(View().horizontalScrollBar()->value(), View().verticalScrollBar()->value());
    return (layout.PageRect(page).topLeft() + QPointF(x, y) * layout.PixelsPerTwip() - offset).toPoint();
  }
  void Wheel(int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier, QPoint at = {200, 200}) {
    QWheelEvent event(at, View().viewport()->mapToGlobal(at), {}, {0, notches * 120}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(View().viewport(), &event);
  }
  // `answer` gets the modal dialog of class `Dialog` as soon as it is up; run what opens it after this.
  template <typename Dialog>
  void OnDialog(std::function<void(Dialog&)> answer) {
    answered_ = false;
    auto* timer = new QTimer(window_.get());
    QObject::connect(timer, &QTimer::timeout, window_.get(), [this, timer, answer = std::move(answer)] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || !dialog->isVisible()) return;
      timer->stop();
      answered_ = true;
      answer(*dialog);
    });
    timer->start(5);
  }

  std::shared_ptr<PreviewMemory> memory_ = std::make_shared<PreviewMemory>();
  std::function<std::vector<NamedBytes>()> readData_;  // none: the host's files can't be had
  std::unique_ptr<PreviewWindow> window_;
  bool answered_ = false;
};

}  // namespace tarvis
