#!/usr/bin/python3
"""Looks into the LibreOffice that runs, from outside of the program under test.

    probe.py documents                 a line for each open book: URL, and whether it is modified, visible
    probe.py cells NAME RANGE          the filled cells of the first sheet of the book whose URL
                                       ends with NAME, the one that was opened last
    probe.py formats NAME RANGE        the formats of its columns, cells and page
    probe.py cells-of-file PATH RANGE  the same of a file on disk, which is opened unseen for it
    probe.py formats-of-file PATH RANGE
    probe.py fill-file PATH CELL...    writes "filled" into cells of a file on disk
    probe.py put NAME CELL TEXT        a user's own text in a cell
    probe.py forget NAME               makes the office believe that nothing was changed
    probe.py close NAME                closes the book, and drops what was changed in it

The office is asked to listen at a pipe by a second call, as any user's script would do it; where
none runs, that call starts one.
"""

import contextlib
import os
import pathlib
import subprocess
import sys
import time

import uno
from com.sun.star.beans import PropertyValue
from com.sun.star.connection import NoConnectException


def office_context():
    pipe = f"probe-{os.getpid()}"
    subprocess.Popen(
        ["soffice", f"--accept=pipe,name={pipe};urp;", "--nodefault", "--norestore", "--nologo"],
        start_new_session=True,
        stdin=subprocess.DEVNULL,
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
    )
    resolver = uno.getComponentContext().ServiceManager.createInstance(
        "com.sun.star.bridge.UnoUrlResolver"
    )
    for _ in range(400):
        try:
            return resolver.resolve(f"uno:pipe,name={pipe};urp;StarOffice.ComponentContext")
        except NoConnectException:
            time.sleep(0.05)
    sys.exit("no office answers")


def components(office):
    found = []
    enumeration = office.Components.createEnumeration()
    while enumeration.hasMoreElements():
        component = enumeration.nextElement()
        if hasattr(component, "URL"):
            found.append(component)
    return found


def window_of(component):
    return component.CurrentController.Frame.ContainerWindow


def document(office, name):
    fitting = [found for found in components(office) if found.URL.endswith(name)]
    if not fitting:
        sys.exit(f"no document {name}")
    # Documents without a number of their own come first.
    return max(fitting, key=lambda found: int("0" + "".join(filter(str.isdigit, found.RuntimeUID))))


@contextlib.contextmanager
def file(office, path, read_only=True):
    how = (
        PropertyValue(Name="Hidden", Value=True),
        PropertyValue(Name="ReadOnly", Value=read_only),
    )
    opened = office.loadComponentFromURL(pathlib.Path(path).as_uri(), "_blank", 0, how)
    try:
        yield opened
    finally:
        opened.close(True)


def escaped(text):
    return text.replace("\\", "\\\\").replace("\n", "\\n").replace("\t", "\\t")


def print_cells(book, cells):
    filled = book.Sheets.getByIndex(0).getCellRangeByName(cells)
    for r, row in enumerate(filled.getDataArray()):
        for c, value in enumerate(row):
            if value == "":
                continue
            cell = filled.getCellByPosition(c, r)
            name = chr(ord("A") + cell.CellAddress.Column) + str(cell.CellAddress.Row + 1)
            shown = escaped(value) if isinstance(value, str) else repr(value)
            print(f"{name}\t{cell.Type.value}\t{'bold' if cell.CharWeight > 100 else 'plain'}\t{shown}")


def print_formats(book, cells):
    sheet = book.Sheets.getByIndex(0)
    filled = sheet.getCellRangeByName(cells)
    page = book.StyleFamilies.getByName("PageStyles").getByName(sheet.PageStyle)
    print(f"sheets\t{book.Sheets.Count}")
    print(f"landscape\t{page.IsLandscape}")
    print(f"scale\t{page.ScaleToPagesX}\t{page.ScaleToPagesY}")
    titles = sheet.getTitleRows()
    print(f"titles\t{sheet.getPrintTitleRows()}\t{titles.StartRow}\t{titles.EndRow}")
    for c in range(filled.Columns.Count):
        print(f"width\t{c}\t{filled.Columns.getByIndex(c).Width}")
    for r in range(filled.Rows.Count):
        for c in range(filled.Columns.Count):
            cell = filled.getCellByPosition(c, r)
            weight = "bold" if cell.CharWeight > 100 else "plain"
            print(f"cell\t{c}\t{r}\t{weight}\t{cell.HoriJustify.value}\t{cell.CharFontName}")


def main():
    command, *arguments = sys.argv[1:]
    services = office_context().ServiceManager
    office = services.createInstance("com.sun.star.frame.Desktop")
    if command == "documents":
        for found in components(office):
            print(f"{found.URL}\t{found.isModified()}\t{window_of(found).isVisible()}")
    elif command == "cells":
        print_cells(document(office, arguments[0]), arguments[1])
    elif command == "formats":
        print_formats(document(office, arguments[0]), arguments[1])
    elif command == "cells-of-file":
        with file(office, arguments[0]) as book:
            print_cells(book, arguments[1])
    elif command == "formats-of-file":
        with file(office, arguments[0]) as book:
            print_formats(book, arguments[1])
    elif command == "fill-file":
        with file(office, arguments[0], read_only=False) as book:
            for cell in arguments[1:]:
                book.Sheets.getByIndex(0).getCellRangeByName(cell).String = "filled"
            book.store()
    elif command == "put":
        book = document(office, arguments[0])
        book.Sheets.getByIndex(0).getCellRangeByName(arguments[1]).String = arguments[2]
    elif command == "forget":
        document(office, arguments[0]).setModified(False)
    elif command == "close":
        document(office, arguments[0]).close(True)
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main()
    # The bridge's threads still run when Python tears down what they use, and crash now and then.
    sys.stdout.flush()
    os._exit(0)
