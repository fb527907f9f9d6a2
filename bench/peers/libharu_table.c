/* The table by libharu: libharu_table ROWS OUT.pdf */
#include <hpdf.h>
#include <stdio.h>
#include <stdlib.h>

#include "table.h"

static void stop(HPDF_STATUS error, HPDF_STATUS detail, void* user) {
  (void)user;
  fprintf(stderr, "libharu: error %04lX, %lu\n", (unsigned long)error, (unsigned long)detail);
  exit(1);
}

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const int rows = atoi(argv[1]);
  HPDF_Doc pdf = HPDF_New(stop, NULL);
  HPDF_SetCompressionMode(pdf, HPDF_COMP_ALL);
  const char* name = HPDF_LoadTTFontFromFile(pdf, FONT_FILE, HPDF_TRUE);
  HPDF_Font font = HPDF_GetFont(pdf, name, NULL);
  HPDF_Page page = NULL;
  for (int row = 0; row < rows; ++row) {
    if (row % ROWS_PER_PAGE == 0) {
      page = HPDF_AddPage(pdf);
      HPDF_Page_SetSize(page, HPDF_PAGE_SIZE_A4, HPDF_PAGE_PORTRAIT);
      HPDF_Page_SetFontAndSize(page, font, FONT_SIZE);
      HPDF_Page_SetLineWidth(page, LINE_WIDTH);
    }
    char texts[COLUMNS][TEXT_SIZE];
    write_row(row, texts);
    const float top = PAGE_HEIGHT - row_top(row);
    for (int column = 0; column < COLUMNS; ++column)
      HPDF_Page_Rectangle(page, lefts[column], top - ROW_HEIGHT, lefts[column + 1] - lefts[column], ROW_HEIGHT);
    HPDF_Page_Stroke(page);
    HPDF_Page_BeginText(page);
    for (int column = 0; column < COLUMNS; ++column)
      HPDF_Page_TextOut(page, lefts[column] + INSET, top - BASELINE, texts[column]);
    HPDF_Page_EndText(page);
  }
  HPDF_SaveToFile(pdf, argv[2]);
  HPDF_Free(pdf);
  return 0;
}
