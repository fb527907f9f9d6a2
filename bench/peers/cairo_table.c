/* The table by cairo: cairo_table ROWS OUT.pdf */
#include <cairo-pdf.h>
#include <stdio.h>
#include <stdlib.h>

#include "table.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const int rows = atoi(argv[1]);
  cairo_surface_t* surface = cairo_pdf_surface_create(argv[2], PAGE_WIDTH, PAGE_HEIGHT);
  cairo_t* painter = cairo_create(surface);
  cairo_select_font_face(painter, FONT_NAME, CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(painter, FONT_SIZE);
  cairo_set_line_width(painter, LINE_WIDTH);
  for (int row = 0; row < rows; ++row) {
    if (row > 0 && row % ROWS_PER_PAGE == 0) cairo_show_page(painter);
    char texts[COLUMNS][TEXT_SIZE];
    write_row(row, texts);
    const double top = row_top(row);
    for (int column = 0; column < COLUMNS; ++column)
      cairo_rectangle(painter, lefts[column], top, lefts[column + 1] - lefts[column], ROW_HEIGHT);
    cairo_stroke(painter);
    for (int column = 0; column < COLUMNS; ++column) {
      cairo_move_to(painter, lefts[column] + INSET, top + BASELINE);
      cairo_show_text(painter, texts[column]);
    }
  }
  cairo_show_page(painter);
  cairo_destroy(painter);
  cairo_surface_destroy(surface);
  return 0;
}
