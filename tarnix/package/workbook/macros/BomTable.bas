Option Explicit

' The table on the sheet: row 1 is the button and the sentence, row 2 the header, then the rows. The
' line of the mass stands apart below, where the filter does not reach.

Private Const HeaderRow As Long = 2
Private Const FirstColumnWidth As Double = 13
Private Const WidestColumn As Double = 60

' Takes everything below the first row away, the filter too. Rows that were only emptied would keep
' their looks, and Calc would lay the next filter where the last one was.
Public Sub ClearTable(sheet As Worksheet)
    Dim lastRow As Long

    If sheet.AutoFilterMode Then sheet.AutoFilterMode = False
    sheet.Range("B1").ClearContents
    lastRow = sheet.UsedRange.Row + sheet.UsedRange.Rows.Count - 1
    If lastRow >= HeaderRow Then
        sheet.Range(sheet.Cells(HeaderRow, 1), sheet.Cells(lastRow, 1)).EntireRow.Delete
    End If
End Sub

' Shows an export, and yields the number of its rows in words.
Public Function ShowRecords(sheet As Worksheet, records As Collection) As String
    Dim columnCount As Long
    Dim rowCount As Long
    Dim lastRow As Long

    columnCount = WidestRecord(records)
    rowCount = records.Count - 1
    If IsMassRecord(records(records.Count)) Then rowCount = rowCount - 1
    lastRow = HeaderRow + rowCount
    sheet.Range(sheet.Cells(HeaderRow, 1), sheet.Cells(HeaderRow, columnCount)).Style = _
        ThisWorkbook.Styles("BOM header")
    WriteTable sheet, records, rowCount, columnCount
    If records.Count > rowCount + 1 Then
        WriteMass sheet, records(records.Count), lastRow + 2, columnCount
        lastRow = lastRow + 2
    End If
    FitColumns sheet, lastRow, columnCount
    If rowCount > 0 Then
        sheet.Range(sheet.Cells(HeaderRow, 1), sheet.Cells(HeaderRow + rowCount, columnCount)).AutoFilter
        ' Positions stand under their caption, away from the part numbers.
        sheet.Range(sheet.Cells(HeaderRow, 1), sheet.Cells(HeaderRow + rowCount, 1)).HorizontalAlignment = xlLeft
    End If
    ShowRecords = rowCount & IIf(rowCount = 1, " row", " rows")
End Function

Private Function WidestRecord(records As Collection) As Long
    Dim record As Variant
    Dim widest As Long

    For Each record In records
        If UBound(record) + 1 > widest Then widest = UBound(record) + 1
    Next
    WidestRecord = widest
End Function

Private Sub WriteTable(sheet As Worksheet, records As Collection, ByVal rowCount As Long, _
        ByVal columnCount As Long)
    Dim values() As Variant
    Dim runStart() As Long
    Dim runStyle() As String
    Dim numeric As Variant
    Dim record As Variant
    Dim text As String
    Dim style As String
    Dim row As Long
    Dim column As Long

    ReDim values(0 To rowCount, 0 To columnCount - 1)
    ReDim runStart(0 To columnCount - 1)
    ReDim runStyle(0 To columnCount - 1)
    numeric = NumericColumns(records, columnCount)
    For Each record In records
        If row > rowCount Then Exit For
        For column = 0 To columnCount - 1
            text = FieldText(record, column)
            style = ""
            If row > 0 And numeric(column) Then style = NumberStyle(text)
            values(row, column) = CellValue(text, Len(style) > 0)
            ' Cells in a row that look alike are styled in one go.
            If style <> runStyle(column) Then
                StyleRun sheet, runStart(column), row - 1, column, runStyle(column)
                runStart(column) = row
                runStyle(column) = style
            End If
        Next
        row = row + 1
    Next
    For column = 0 To columnCount - 1
        StyleRun sheet, runStart(column), rowCount, column, runStyle(column)
    Next
    sheet.Range(sheet.Cells(HeaderRow, 1), sheet.Cells(HeaderRow + rowCount, columnCount)).Value = values
End Sub

' A record may be shorter than the header.
Private Function FieldText(record As Variant, ByVal column As Long) As String
    If column <= UBound(record) Then FieldText = record(column)
End Function

Private Sub StyleRun(sheet As Worksheet, ByVal first As Long, ByVal last As Long, _
        ByVal column As Long, style As String)
    If Len(style) = 0 Then Exit Sub
    sheet.Range(sheet.Cells(HeaderRow + first, column + 1), _
        sheet.Cells(HeaderRow + last, column + 1)).Style = ThisWorkbook.Styles(style)
End Sub

' Which columns may hold numbers: not those whose caption says that they are texts. Positions are
' numbers only as long as all are whole, for 1.10 is no number.
Private Function NumericColumns(records As Collection, ByVal columnCount As Long) As Variant
    Dim numeric() As Boolean
    Dim header As Variant
    Dim column As Long

    ReDim numeric(0 To columnCount - 1)
    header = records(1)
    For column = 0 To columnCount - 1
        numeric(column) = True
        If column <= UBound(header) Then
            Select Case header(column)
                Case "Part Number", "Part Name", "Description", "BOM Structure", "Physical Material"
                    numeric(column) = False
                Case "Pos."
                    numeric(column) = AllWhole(records, column)
            End Select
        End If
    Next
    NumericColumns = numeric
End Function

Private Function AllWhole(records As Collection, ByVal column As Long) As Boolean
    Dim record As Variant
    Dim isHeader As Boolean

    isHeader = True
    For Each record In records
        If Not isHeader And Not IsMassRecord(record) Then
            If Not IsDigits(FieldText(record, column)) Then Exit Function
        End If
        isHeader = False
    Next
    AllWhole = True
End Function

Private Sub WriteMass(sheet As Worksheet, record As Variant, ByVal row As Long, _
        ByVal columnCount As Long)
    Dim text As String
    Dim column As Long

    sheet.Range(sheet.Cells(row, 1), sheet.Cells(row, columnCount)).Style = _
        ThisWorkbook.Styles("BOM mass")
    For column = 0 To UBound(record)
        text = record(column)
        sheet.Cells(row, column + 1).Value = CellValue(text, column = 2 And IsPlainNumber(text))
    Next
End Sub

' As wide as the texts, within bounds; the first column carries the button.
Private Sub FitColumns(sheet As Worksheet, ByVal lastRow As Long, ByVal columnCount As Long)
    Dim column As Long

    sheet.Range(sheet.Cells(HeaderRow, 1), sheet.Cells(lastRow, columnCount)).Columns.AutoFit
    For column = 1 To columnCount
        With sheet.Columns(column)
            If .ColumnWidth > WidestColumn Then .ColumnWidth = WidestColumn
            ' Room for the filter's arrow behind the caption.
            If .ColumnWidth < WidestColumn - 3 Then .ColumnWidth = .ColumnWidth + 3
            If column = 1 And .ColumnWidth < FirstColumnWidth Then .ColumnWidth = FirstColumnWidth
        End With
    Next
End Sub
