Option Explicit

' UTF-8, written out, because the system's converters are not everywhere where a workbook is opened.

' The text from a position up to the end of its line, which is left out; the position moves on to the
' next line. What is no UTF-8 becomes the replacement character, byte by byte.
Public Function NextLine(bytes() As Byte, ByVal length As Long, position As Long) As String
    Dim text As String
    Dim code As Long
    Dim size As Long

    Do While position < length
        code = bytes(position)
        If code = 10 Then
            position = position + 1
            Exit Do
        ElseIf code < 128 Then
            text = text & ChrW(code)
            position = position + 1
        Else
            size = SequenceSize(bytes, position, length - 1)
            text = text & Character(bytes, position, size)
            position = position + IIf(size = 0, 1, size)
        End If
    Loop
    If Right(text, 1) = vbCr Then text = Left(text, Len(text) - 1)
    NextLine = text
End Function

' The length of the sequence that begins at a position; 0 where none does.
Private Function SequenceSize(bytes() As Byte, ByVal position As Long, ByVal last As Long) As Long
    Dim size As Long
    Dim offset As Long

    Select Case bytes(position)
        Case 194 To 223: size = 2
        Case 224 To 239: size = 3
        Case 240 To 244: size = 4
        Case Else: Exit Function
    End Select
    If position + size - 1 > last Then Exit Function
    For offset = 1 To size - 1
        If bytes(position + offset) < 128 Or bytes(position + offset) > 191 Then Exit Function
    Next
    SequenceSize = size
End Function

' One character, or the two halves by which a text holds one from beyond the first 65536.
Private Function Character(bytes() As Byte, ByVal position As Long, ByVal size As Long) As String
    Dim code As Long
    Dim offset As Long

    code = bytes(position)
    If size = 0 Then code = 65533
    If size = 2 Then code = code - 192
    If size = 3 Then code = code - 224
    If size = 4 Then code = code - 240
    For offset = 1 To size - 1
        code = code * 64 + bytes(position + offset) - 128
    Next
    If code < 65536 Then
        Character = ChrW(code)
    Else
        code = code - 65536
        Character = ChrW(55296 + code \ 1024) & ChrW(56320 + code Mod 1024)
    End If
End Function
