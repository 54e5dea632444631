Option Explicit

' The export as a file: UTF-8, a ";" behind every field, no quoting. Behind the rows stand an empty
' line and the line of the total mass, which alone has no ";" at its end.

Private Const MassLabel As String = "Total mass of structure BOM [kg]: "

Public Const FileMissing As Long = -1
Public Const FileLocked As Long = -2

' The bytes of a file and their number; FileMissing or FileLocked when the system gives none.
Public Function ReadFile(path As String, bytes() As Byte) As Long
    Dim handle As Integer
    Dim length As Long

    If HasNoFile(path) Then
        ReadFile = FileMissing
        Exit Function
    End If
    On Error GoTo Refused
    handle = FreeFile
    Open path For Binary Access Read Shared As #handle
    length = LOF(handle)
    If length > 0 Then
        ReDim bytes(0 To length - 1)
        Get #handle, 1, bytes
    End If
    ReadFile = length
Leave:
    On Error Resume Next
    Close #handle
    Exit Function
Refused:
    ReadFile = FileLocked
    Resume Leave
End Function

' Asked beforehand, because opening a file that is not there would make it.
Private Function HasNoFile(path As String) As Boolean
    Dim length As Long

    On Error Resume Next
    length = FileLen(path)
    HasNoFile = (Err.Number <> 0)
End Function

' The lines of the export, each an array of its fields; the line of the mass is the last, if it is
' there. A file that could not be deleted holds several exports: the last of them counts. A value that
' holds a line break tears its line in two: what does not end in ";" goes on in the next line.
Public Function ExportRecords(bytes() As Byte, ByVal length As Long) As Collection
    Dim records As Collection
    Dim text As String
    Dim textLine As String
    Dim position As Long

    Set records = New Collection
    position = SkipByteOrderMark(bytes, length)
    Do While position < length
        textLine = NextLine(bytes, length, position)
        If IsMassLine(textLine) Then
            If Len(text) > 0 Then AddRecord records, text
            AddRecord records, textLine
            text = ""
        ElseIf Len(text) > 0 Or Len(textLine) > 0 Then
            If Len(text) > 0 Then text = text & vbLf
            text = text & textLine
            If Right(textLine, 1) = ";" Then
                AddRecord records, text
                text = ""
            End If
        End If
    Loop
    If Len(text) > 0 Then AddRecord records, text
    Set ExportRecords = records
End Function

Public Function IsMassRecord(record As Variant) As Boolean
    If UBound(record) >= 1 Then IsMassRecord = (record(0) = "" And record(1) = MassLabel)
End Function

Private Function IsMassLine(textLine As String) As Boolean
    IsMassLine = (Left(textLine, Len(MassLabel) + 2) = ";" & MassLabel & ";")
End Function

' A line behind the mass belongs to a further export, which replaces what was read so far.
Private Sub AddRecord(records As Collection, text As String)
    Dim fields As Variant

    If records.Count > 0 Then
        If IsMassRecord(records(records.Count)) Then Set records = New Collection
    End If
    fields = Split(text, ";")
    ' Behind the last ";" stands nothing. (A block: Calc takes the next line into a short form.)
    If Right(text, 1) = ";" And Not IsMassLine(text) Then
        ReDim Preserve fields(0 To UBound(fields) - 1)
    End If
    records.Add fields
End Sub

Private Function SkipByteOrderMark(bytes() As Byte, ByVal length As Long) As Long
    If length >= 3 Then
        If bytes(0) = 239 And bytes(1) = 187 And bytes(2) = 191 Then SkipByteOrderMark = 3
    End If
End Function
