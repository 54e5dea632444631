Option Explicit

' Reads the export that lies beside this workbook into its sheet. The workbook does so when it is
' opened, the button "Reload" whenever it is pressed. What goes wrong is told in the sheet, where the
' table would be: nobody has to answer a message.

Private Const ExportName As String = "TarnixBOM.csv"
Private Const ReloadHint As String = " Then press Reload."

Public Sub ReadExport()
    Dim sheet As Worksheet
    Dim status As String

    Set sheet = ThisWorkbook.Worksheets(1)
    Application.ScreenUpdating = False
    On Error GoTo Failed
    ClearTable sheet
    status = FillFromExport(sheet, ThisWorkbook.Path & Application.PathSeparator & ExportName)
Finish:
    On Error Resume Next
    sheet.Range("B1").Value = "'" & status
    Application.ScreenUpdating = True
    ' Nothing here is worth a question when the workbook is closed or opened once more.
    ThisWorkbook.Saved = True
    Exit Sub
Failed:
    status = ExportName & " cannot be shown: " & Err.Description & "." & ReloadHint
    Resume Finish
End Sub

' Shows the export and yields the sentence that tells what is shown, or why nothing is.
Private Function FillFromExport(sheet As Worksheet, path As String) As String
    Dim bytes() As Byte
    Dim length As Long
    Dim records As Collection

    length = ReadFile(path, bytes)
    If length = FileMissing Then
        FillFromExport = ExportName & " is not in the folder of this workbook." & _
            " Export the BOM from its dialog." & ReloadHint
        Exit Function
    End If
    If length = FileLocked Then
        FillFromExport = ExportName & " cannot be read: another program keeps it to itself." & _
            " Close it there." & ReloadHint
        Exit Function
    End If
    Set records = ExportRecords(bytes, length)
    If records.Count = 0 Then
        FillFromExport = ExportName & " is empty. Export the BOM from its dialog." & ReloadHint
        Exit Function
    End If
    FillFromExport = ShowRecords(sheet, records) & " from " & ExportName & " of " & _
        Format(FileDateTime(path), "yyyy-mm-dd hh:mm:ss") & "."
    If Not IsMassRecord(records(records.Count)) Then
        FillFromExport = FillFromExport & " The export was broken off: its last line is missing."
    End If
End Function
