#!/usr/bin/python3
"""Makes the workbooks that lie in the program's folder: total.xls, which the Total screen is exported
to, and xls/Empty.xls, which takes the dew-point table. Both hold formats only.

    make_templates.py [FOLDER]    FOLDER is where they are written, this script's own if left out

Drives LibreOffice without a display and needs Debian's libreoffice-calc and python3-uno. The two
files beside this script were made by it; run it again after a change here and commit them too.
"""

import pathlib
import subprocess
import sys
import tempfile
import time
import uuid

import uno
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException
from com.sun.star.table import CellRangeAddress
from com.sun.star.table.CellHoriJustify import RIGHT
from com.sun.star.table.CellVertJustify2 import BOTTOM

BOLD = 150.0

# Widths in 1/100 mm. Column A stays empty, B and C are the product and the kind of object; the
# others hold numbers.
TOTAL_WIDTHS = [500, 4600, 4600] + [2600] * 17
TOTAL_TEXT_COLUMNS = 3
# The dew points, and the numbers of their rows in the last column.
EMPTY_WIDTHS = [1500] * 17


def named_values(**values):
    return tuple(PropertyValue(Name=name, Value=value) for name, value in values.items())


def set_up_columns(sheet, widths, text_columns):
    for number, width in enumerate(widths):
        column = sheet.Columns.getByIndex(number)
        column.Width = width
        if number >= text_columns:
            column.HoriJustify = RIGHT


def set_up_header_row(sheet, columns):
    header = sheet.getCellRangeByPosition(0, 0, columns - 1, 0)
    header.CharWeight = BOLD
    header.IsTextWrapped = True
    header.VertJustify = BOTTOM
    rows = CellRangeAddress()
    rows.EndColumn = columns - 1
    sheet.setPrintTitleRows(True)
    sheet.setTitleRows(rows)


def set_up_page(document, sheet):
    page = document.StyleFamilies.getByName("PageStyles").getByName(sheet.PageStyle)
    page.IsLandscape = True
    page.Width, page.Height = 29700, 21000
    page.LeftMargin = page.RightMargin = page.TopMargin = page.BottomMargin = 1000
    page.ScaleToPagesX, page.ScaleToPagesY = 1, 0


def make_workbook(desktop, path, sheet_name, widths, text_columns, header_row):
    document = desktop.loadComponentFromURL(
        "private:factory/scalc", "_blank", 0, named_values(Hidden=True)
    )
    try:
        document.StyleFamilies.getByName("CellStyles").getByName("Default").CharFontName = "Arial"
        while document.Sheets.Count > 1:
            document.Sheets.removeByName(document.Sheets.getByIndex(1).Name)
        sheet = document.Sheets.getByIndex(0)
        sheet.Name = sheet_name
        set_up_columns(sheet, widths, text_columns)
        set_up_page(document, sheet)
        if header_row:
            set_up_header_row(sheet, len(widths))
            document.CurrentController.freezeAtPosition(0, 1)
        path.parent.mkdir(parents=True, exist_ok=True)
        document.storeToURL(path.as_uri(), named_values(FilterName="MS Excel 97"))
    finally:
        document.close(True)


def desktop_of(office, pipe):
    resolver = uno.getComponentContext().ServiceManager.createInstance(
        "com.sun.star.bridge.UnoUrlResolver"
    )
    for _ in range(600):
        try:
            context = resolver.resolve(f"uno:pipe,name={pipe};urp;StarOffice.ComponentContext")
            return context.ServiceManager.createInstance("com.sun.star.frame.Desktop")
        except NoConnectException:
            if office.poll() is not None:
                break
            time.sleep(0.1)
    sys.exit("LibreOffice doesn't start")


def name_class(workbook):
    """Writes the class of such workbooks into the file's root, where Windows looks for whose it is."""
    of_workbooks = uuid.UUID("00020820-0000-0000-c000-000000000046").bytes_le
    data = bytearray(workbook.read_bytes())
    root = data.index("Root Entry".encode("utf-16-le")) + 80
    data[root : root + 16] = of_workbooks
    workbook.write_bytes(data)


def main():
    here = pathlib.Path(__file__).resolve().parent
    folder = pathlib.Path(sys.argv[1]).resolve() if len(sys.argv) > 1 else here
    with tempfile.TemporaryDirectory() as profile:
        pipe = "templates-" + pathlib.Path(profile).name
        office = subprocess.Popen(
            [
                "soffice",
                "--headless",
                "--norestore",
                f"--accept=pipe,name={pipe};urp;",
                "-env:UserInstallation=" + pathlib.Path(profile).as_uri(),
            ]
        )
        try:
            desktop = desktop_of(office, pipe)
            make_workbook(
                desktop, folder / "total.xls", "Total", TOTAL_WIDTHS, TOTAL_TEXT_COLUMNS, True
            )
            make_workbook(
                desktop, folder / "xls" / "Empty.xls", "Dew points", EMPTY_WIDTHS, 0, False
            )
            desktop.terminate()
            office.wait(60)
            for name in ("total.xls", "xls/Empty.xls"):
                name_class(folder / name)
        finally:
            if office.poll() is None:
                office.terminate()


if __name__ == "__main__":
    main()
