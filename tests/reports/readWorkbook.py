"""readWorkbook.py FILE SHEET: every row's values, texts in quotes; then the last row's formats and the numbers of the rows in
bold. A reader that is not ours."""
import sys

import xlrd

book = xlrd.open_workbook(sys.argv[1], formatting_info=True)
sheet = book.sheet_by_name(sys.argv[2])


def shown(cell):
    if cell.ctype == xlrd.XL_CELL_TEXT:
        return '"' + cell.value + '"' if cell.value else ""
    if cell.ctype == xlrd.XL_CELL_DATE:
        return "{1}/{2}/{0} {3}:{4:02}:{5:02}".format(*xlrd.xldate_as_tuple(cell.value, book.datemode))
    return "%.15g" % cell.value if cell.ctype == xlrd.XL_CELL_NUMBER else str(cell.value)


def isBold(cell):
    return book.font_list[book.xf_list[cell.xf_index].font_index].weight >= 700 and cell.value != ""


for row in sheet.get_rows():
    print("|".join(map(shown, row)))
print("|".join(book.format_map[book.xf_list[cell.xf_index].format_key].format_str for cell in row))
print("bold", [number + 1 for number in range(sheet.nrows) if any(map(isBold, sheet.row(number)))])
