"""readWorkbook.py FILE SHEET: one line a cell that holds something: name|kind|value|format|bold, by a reader that is not ours."""
import sys

import xlrd

book = xlrd.open_workbook(sys.argv[1], formatting_info=True)
sheet = book.sheet_by_name(sys.argv[2])
kinds = {1: "text", 2: "number", 3: "date", 4: "boolean", 5: "error"}
for row in range(sheet.nrows):
    for column in range(sheet.ncols):
        cell = sheet.cell(row, column)
        if cell.ctype not in kinds:
            continue
        style = book.xf_list[cell.xf_index]
        value = cell.value
        if cell.ctype == 3:
            value = "%d/%d/%d %d:%02d:%02d" % tuple(xlrd.xldate_as_tuple(value, book.datemode)[i] for i in (1, 2, 0, 3, 4, 5))
        elif cell.ctype == 2:
            value = "%.15g" % value
        print("|".join((xlrd.cellname(row, column), kinds[cell.ctype], str(value), book.format_map[style.format_key].format_str,
                        "bold" if book.font_list[style.font_index].weight >= 700 else "plain")))
