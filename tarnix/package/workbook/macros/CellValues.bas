Option Explicit

' What a field becomes in its cell. A number is only what is written as one with a point, and with no
' digit that a number would lose; it is shown with the decimals that it was written with. Everything
' else is a text, and never a formula, a date or a number.

' A cell holds this many digits of a number.
Private Const MostDigits As Long = 15

' Tells whether a text is a number: digits, a "-" in front and a point within, no needless zero in
' front, no more digits than a cell can hold.
Public Function IsPlainNumber(text As String) As Boolean
    Dim whole As String
    Dim point As Long

    whole = text
    If Left(whole, 1) = "-" Then whole = Mid(whole, 2)
    If Len(Replace(whole, ".", "")) > MostDigits Then Exit Function
    point = InStr(whole, ".")
    If point > 0 Then
        If Not IsDigits(Mid(whole, point + 1)) Then Exit Function
        whole = Left(whole, point - 1)
    End If
    IsPlainNumber = (whole = "0" Or (IsDigits(whole) And Left(whole, 1) <> "0"))
End Function

Public Function IsDigits(text As String) As Boolean
    IsDigits = (Len(text) > 0 And Not (text Like "*[!0-9]*"))
End Function

' What to put into a cell. The mark in front of a text keeps it one, and is not part of it.
Public Function CellValue(text As String, ByVal isNumber As Boolean) As Variant
    If isNumber Then
        CellValue = Val(text)
    ElseIf Len(text) > 0 Then
        CellValue = "'" & text
    Else
        CellValue = ""
    End If
End Function

' The style of the workbook that shows a number with as many decimals as its text has; empty for what
' is no number.
Public Function NumberStyle(text As String) As String
    Dim point As Long
    Dim decimals As Long

    If Not IsPlainNumber(text) Then Exit Function
    point = InStr(text, ".")
    If point > 0 Then decimals = Len(text) - point
    NumberStyle = "BOM decimals " & decimals
End Function
