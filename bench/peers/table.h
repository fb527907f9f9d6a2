/* The table that all peers draw; lengths in points. */
#include <stdio.h>

enum { COLUMNS = 5, ROWS_PER_PAGE = 48, TEXT_SIZE = 64 };

#define PAGE_WIDTH 595.3F
#define PAGE_HEIGHT 841.9F
#define FONT_NAME "Liberation Sans"
#define FONT_FILE "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf"
#define FONT_SIZE 8.5F
#define LINE_WIDTH 0.75F
#define ROW_HEIGHT 14.15F
#define TABLE_TOP 100.0F
#define INSET 1.5F
#define BASELINE 10.0F

static const float lefts[COLUMNS + 1] = {72, 130, 320, 400, 470, 560};

static inline void write_row(int row, char texts[COLUMNS][TEXT_SIZE]) {
  snprintf(texts[0], TEXT_SIZE, "S-%d", row);
  snprintf(texts[1], TEXT_SIZE, "Speed Loop Gain of Axis %d", row % 61);
  snprintf(texts[2], TEXT_SIZE, "%d", row * 7 % 9973);
  snprintf(texts[3], TEXT_SIZE, "min-1");
  snprintf(texts[4], TEXT_SIZE, "100");
}

static inline float row_top(int row) {
  return TABLE_TOP + (float)(row % ROWS_PER_PAGE) * ROW_HEIGHT;
}
