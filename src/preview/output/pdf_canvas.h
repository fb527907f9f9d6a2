// Pages as PDF content, written directly: a page of table cells is a few kilobytes of plain operators, and
// writing them costs a fraction of what the toolkit's PDF painter takes.
//
// Content is in twips with the origin at the top left; a matrix at its start turns that into PDF's points.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "preview/output/pdf_glyphs.h"
#include "preview/output/pdf_pictures.h"
#include "preview/output/pdf_sheets.h"
#include "preview/paint/page_painter.h"
#include "report/engine/units.h"

namespace tarvis {

// What a canvas calls where content is written, for those that mark it.
class ContentMarker {
 protected:
  ContentMarker() = default;
  ~ContentMarker() = default;
  ContentMarker(const ContentMarker&) = delete;
  ContentMarker& operator=(const ContentMarker&) = delete;

  // A piece of text is about to be shown in an open text object, which is about to be closed.
  virtual void OnText() {}
  virtual void OnEndOfText() {}
  // Fills or lines are about to be painted, and have been.
  virtual void OnPaths() {}
  virtual void OnEndOfPaths() {}
  // Whether the piece of text is read, so that lines of one text must not run together.
  virtual bool ReadsText() const { return false; }
  // Whether each character of private use needs to say what it is in a text of its own, as level A of the
  // archives asks.
  virtual bool NamesPrivateCharacters() const { return false; }
};

// Makes the content of one page. Glyphs and pictures are collected for the resources that all pages share.
class PdfCanvas : public Canvas, protected ContentMarker {
 public:
  PdfCanvas(const PdfLook& look, PdfGlyphs& glyphs, PdfPictures& pictures);
  // For text that follows another content of the same page.
  PdfCanvas(PdfGlyphs& glyphs, PdfPictures& pictures);

  void Fill(const std::vector<Rect>& boxes, Color color) override;
  void Frame(const std::vector<Rect>& boxes, float width) override;
  void Strokes(const std::vector<Rect>& lines, float width) override;
  void Text(const TextPiece& piece, const TextStyle& style, const Rect& box) override;
  void Picture(const tarvis::Picture& picture, const Rect& box) override;

  // Closes the content and returns it; the canvas must not be used after that.
  std::string Finish();

 protected:
  void Add(std::string_view text) { content_ += text; }
  // Text or boxes that are not finished.
  void EndPart();

 private:
  void UseInk(Color color);
  void UseLineWidth(float width);
  void BeginText();
  void EndText();
  // Paints the boxes that are to be filled, if there are any; `paint` is the operator for it.
  void EndFill(const char* paint = "f\n");
  void ShowText(const TextPiece& piece, const TextStyle& style, double x, double y, double stretch);
  void ShowPlain(const TextPiece& piece, const TextStyle& style, double x, double y, double stretch);
  void ShowShaped(const TextPiece& piece, const TextStyle& style, double x, double y, double stretch);
  void ShowBlank(const TextPiece& piece, const TextStyle& style, double x, double y, double stretch);
  void ShowCluster(const TextCluster& cluster, const TextStyle& style, double x, double y, double stretch);
  void ShowGlyph(const PdfGlyph& glyph, const TextStyle& style, double x, double y);
  void MoveTo(double x, double y);
  void UseFont(std::uint16_t font, float size);
  void UseThickness(bool isThick, float size);
  void ForgetTextState();

  PdfGlyphs& glyphs_;
  PdfPictures& pictures_;
  const bool greys_;
  std::string content_;
  std::vector<Rect> filled_;  // boxes that are not in the content yet, since they may be framed, too
  Color fill_ = Black;        // for them
  Color ink_ = Black;
  float lineWidth_ = 0;
  bool inText_ = false;
  double lineX_ = 0;  // where the current text line starts
  double lineY_ = 0;
  int font_ = -1;
  float size_ = 0;
  double stretch_ = 1;
  std::optional<bool> isThick_ = false;
};

}  // namespace tarvis
