"""The table by ReportLab: reportlab_table.py ROWS OUT.pdf"""
import sys

from reportlab.pdfbase import pdfmetrics
from reportlab.pdfbase.ttfonts import TTFont
from reportlab.pdfgen.canvas import Canvas

ROWS_PER_PAGE, ROW_HEIGHT, TOP = 48, 14.15, 100
LEFTS = (72, 130, 320, 400, 470, 560)
FONT_FILE = "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf"


def main(rows, path):
    pdfmetrics.registerFont(TTFont("Liberation", FONT_FILE))
    canvas = Canvas(path, pagesize=(595.3, 841.9), pageCompression=1)
    for row in range(rows):
        if row % ROWS_PER_PAGE == 0:
            if row:
                canvas.showPage()
            canvas.setFont("Liberation", 8.5)
            canvas.setLineWidth(0.75)
        top = 841.9 - TOP - row % ROWS_PER_PAGE * ROW_HEIGHT
        texts = (f"S-{row}", f"Speed Loop Gain of Axis {row % 61}", str(row * 7 % 9973), "min-1", "100")
        for left, right, text in zip(LEFTS, LEFTS[1:], texts):
            canvas.rect(left, top - ROW_HEIGHT, right - left, ROW_HEIGHT)
            canvas.drawString(left + 1.5, top - 10, text)
    canvas.save()


if __name__ == "__main__":
    main(int(sys.argv[1]), sys.argv[2])
