' Opens the workbook of each case as a user does, with macros allowed, and writes down what its sheet
' shows; then puts the case's next export in place and presses the button. The cases are the folders in
' the environment's WORKBOOK_CASES, parted by line ends.
Sub Run()
    Dim folder
    For Each folder In Split(Environ("WORKBOOK_CASES"), Chr(10))
        If folder <> "" Then ProveCase(folder)
    Next
    StarDesktop.terminate()
End Sub

Sub ProveCase(folder As String)
    Dim load(0) As New com.sun.star.beans.PropertyValue
    load(0).Name = "MacroExecutionMode"
    load(0).Value = com.sun.star.document.MacroExecMode.ALWAYS_EXECUTE_NO_WARN
    On Error GoTo Failed
    book = StarDesktop.loadComponentFromURL(ConvertToURL(folder & "/TarnixBOM.xlsm"), "_blank", 0, load())
    AwaitMacro(book)
    WriteSheet(book, folder & "/opened.txt")
    If FileExists(folder & "/next.csv") Then
        FileCopy(folder & "/next.csv", folder & "/TarnixBOM.csv")
        PressButton(book)
        WriteSheet(book, folder & "/reloaded.txt")
    End If
    book.close(True)
    Exit Sub
Failed:
    WriteText(folder & "/failed.txt", "line " & Erl & ": " & Error)
End Sub

' The workbook's own macro runs once the window is open. Without it the first sentence stays.
Sub AwaitMacro(book)
    Dim round As Integer
    delivered = book.Sheets(0).getCellRangeByName("B1").String
    For round = 1 To 100
        If book.Sheets(0).getCellRangeByName("B1").String <> delivered Then Exit For
        Wait 50
    Next
End Sub

Sub PressButton(book)
    Dim action
    For Each action In book.Sheets(0).DrawPage.getByIndex(0).Events.getByName("OnClick")
        If action.Name = "Script" Then
            book.ScriptProvider.getScript(action.Value).invoke(Array(), Array(), Array())
        End If
    Next
End Sub

Sub WriteSheet(book, path As String)
    Dim text As String
    Dim row As Long
    Dim column As Long
    sheet = book.Sheets(0)
    cursor = sheet.createCursor()
    cursor.gotoEndOfUsedArea(False)
    For row = 0 To cursor.RangeAddress.EndRow
        For column = 0 To cursor.RangeAddress.EndColumn
            text = text & CellText(sheet.getCellByPosition(column, row))
        Next
    Next
    text = text & "frozen rows: " & FrozenRows(book) & Chr(10)
    text = text & "filter:" & Filters(book) & Chr(10)
    text = text & "bold on a ground:" & BoldRows(sheet, cursor.RangeAddress.EndRow) & Chr(10)
    text = text & "modified: " & book.isModified() & Chr(10)
    WriteText(path, text)
End Sub

Function CellText(cell) As String
    Dim kind As String
    Select Case cell.getType()
        Case com.sun.star.table.CellContentType.VALUE: kind = "number " & NumberText(cell.Value) & " shown as"
        Case com.sun.star.table.CellContentType.TEXT: kind = "text"
        Case com.sun.star.table.CellContentType.FORMULA: kind = "FORMULA"
        Case Else: Exit Function
    End Select
    address = Mid(cell.AbsoluteName, InStr(cell.AbsoluteName, ".") + 1)
    CellText = Replace(address, "$", "") & " " & kind & " [" & Replace(cell.String, Chr(10), "\n") & "]" & Chr(10)
End Function

' With a point whatever the locale, and a digit before it.
Function NumberText(value As Double) As String
    NumberText = Replace(Replace(Str(value), " .", "0."), "-.", "-0.")
    NumberText = Trim(NumberText)
End Function

Function Filters(book) As String
    ranges = book.getPropertyValue("UnnamedDatabaseRanges")
    If Not ranges.hasByTable(0) Then Exit Function
    range = ranges.getByTable(0)
    If Not range.AutoFilter Then Exit Function
    area = range.DataArea
    Filters = " rows " & (area.StartRow + 1) & " to " & (area.EndRow + 1) & _
        ", columns " & (area.StartColumn + 1) & " to " & (area.EndColumn + 1)
End Function

' As the view keeps it: the window's own answer counts the rows that its pixels meet.
Function FrozenRows(book) As Integer
    Dim setting, view
    For Each setting In book.getViewData().getByIndex(0)
        If setting.Name = "Tables" Then
            For Each view In setting.Value.getByName(book.Sheets(0).Name)
                If view.Name = "VerticalSplitMode" And view.Value <> 2 Then Exit Function
                If view.Name = "VerticalSplitPositionTwips" Then FrozenRows = view.Value
            Next
        End If
    Next
End Function

Function BoldRows(sheet, last As Long) As String
    Dim found As String
    Dim row As Long
    For row = 0 To last
        cell = sheet.getCellByPosition(0, row)
        If cell.CharWeight > 100 And cell.CellBackColor >= 0 Then found = found & " " & (row + 1)
    Next
    BoldRows = found
End Function

Sub WriteText(path As String, text As String)
    out = CreateUnoService("com.sun.star.ucb.SimpleFileAccess").openFileWrite(ConvertToURL(path))
    stream = CreateUnoService("com.sun.star.io.TextOutputStream")
    stream.setOutputStream(out)
    stream.setEncoding("UTF-8")
    stream.writeString(text)
    stream.closeOutput()
End Sub
