// The Basic module that fills a template inside LibreOffice. It uses the public programming interface only, except for
// three implementation names that tell how texts lie in one another (checked with LibreOffice 7.4).
//
// The job file holds lines of UTF-8 with tab-separated parts: load, doc, pdf with a file address each, and field with
// area (0 body, 1 header, 2 footer), name in lower case and value, in which U+0001 breaks the line and U+0002 is a tab.
// The answer is the file of the same name with ".out" behind it: "OK", or "ERROR" and the reason.
#pragma once

#include <string_view>

namespace kontorwerk {

inline constexpr std::string_view kOfficeMacro = R"BASIC(Option Explicit

Function Pv(sName As String, vValue As Variant) As Object
  Dim oValue As New com.sun.star.beans.PropertyValue
  oValue.Name = sName
  oValue.Value = vValue
  Pv = oValue
End Function

Function SameText(oText As Object, oStyle As Object, sName As String) As Boolean
  Dim oOther As Object
  On Error GoTo NoSuchText
  SameText = False
  oOther = oStyle.getPropertyValue(sName)
  If Not IsNull(oOther) Then SameText = EqualUnoObjects(oText, oOther)
NoSuchText:
End Function

Function AreaOf(oDoc As Object, oRange As Object) As Integer
  Dim oText As Object, oStyles As Object, oStyle As Object, i As Integer, nDepth As Integer
  AreaOf = 0
  oText = oRange.getText()
  For nDepth = 1 To 20
    Select Case oText.ImplementationName
      Case "SwXCell" : oText = oText.ParentText
      Case "SwXTextFrame" : oText = oText.getAnchor().getText()
      Case Else : Exit For
    End Select
  Next nDepth
  If oText.ImplementationName <> "SwXHeadFootText" Then Exit Function
  oStyles = oDoc.StyleFamilies.getByName("PageStyles")
  For i = 0 To oStyles.Count - 1
    oStyle = oStyles.getByIndex(i)
    If oStyle.HeaderIsOn Then
      If SameText(oText, oStyle, "HeaderText") Or SameText(oText, oStyle, "HeaderTextFirst") _
        Or SameText(oText, oStyle, "HeaderTextLeft") Then
        AreaOf = 1
        Exit Function
      End If
    End If
    If oStyle.FooterIsOn Then
      If SameText(oText, oStyle, "FooterText") Or SameText(oText, oStyle, "FooterTextFirst") _
        Or SameText(oText, oStyle, "FooterTextLeft") Then
        AreaOf = 2
        Exit Function
      End If
    End If
  Next i
End Function

Sub FillMarks(oDoc As Object, oValues As Object)
  Dim oSearch As Object, oFound As Object, oRange As Object, sMark As String, sKey As String, sValue As String, i As Long
  oSearch = oDoc.createSearchDescriptor()
  oSearch.SearchRegularExpression = True
  oSearch.SearchString = "\[[^\[\]]{1,60}\]|<<[^<>]{1,60}>>"
  oFound = oDoc.findAll(oSearch)
  For i = oFound.Count - 1 To 0 Step -1
    oRange = oFound.getByIndex(i)
    sMark = oRange.getString()
    If Left(sMark, 1) = "[" Then sMark = Mid(sMark, 2, Len(sMark) - 2) Else sMark = Mid(sMark, 3, Len(sMark) - 4)
    sKey = AreaOf(oDoc, oRange) & Chr(9) & LCase(sMark)
    If oValues.containsKey(sKey) Then
      sValue = oValues.get(sKey)
      oRange.setString(Replace(Replace(sValue, Chr(1), Chr(10)), Chr(2), Chr(9)))
    End If
  Next i
End Sub

Sub WriteAnswer(sJob As String, sAnswer As String)
  Dim oAccess As Object, oOut As Object
  oAccess = createUnoService("com.sun.star.ucb.SimpleFileAccess")
  oOut = createUnoService("com.sun.star.io.TextOutputStream")
  oOut.setEncoding("UTF-8")
  oOut.setOutputStream(oAccess.openFileWrite(sJob & ".out"))
  oOut.writeString(sAnswer)
  oOut.closeOutput()
End Sub

Sub FillTemplate(sJob As String)
  Dim oAccess As Object, oIn As Object, oValues As Object, oDoc As Object, sLine As String, aParts As Variant
  Dim sLoad As String, sDoc As String, sPdf As String
  On Error GoTo Failed
  oAccess = createUnoService("com.sun.star.ucb.SimpleFileAccess")
  oIn = createUnoService("com.sun.star.io.TextInputStream")
  oIn.setInputStream(oAccess.openFileRead(sJob))
  oIn.setEncoding("UTF-8")
  oValues = com.sun.star.container.EnumerableMap.create("string", "string")
  Do While Not oIn.isEOF()
    sLine = oIn.readLine()
    aParts = Split(sLine, Chr(9))
    If UBound(aParts) >= 1 Then
      Select Case aParts(0)
        Case "load" : sLoad = aParts(1)
        Case "doc" : sDoc = aParts(1)
        Case "pdf" : sPdf = aParts(1)
        Case "field" : oValues.put(aParts(1) & Chr(9) & aParts(2), aParts(3))
      End Select
    End If
  Loop
  oIn.closeInput()
  oDoc = StarDesktop.loadComponentFromURL(sLoad, "_blank", 0, Array(Pv("Hidden", True), _
    Pv("MacroExecutionMode", CInt(0)), Pv("UpdateDocMode", CInt(0)), Pv("AsTemplate", False)))
  FillMarks(oDoc, oValues)
  oDoc.storeToURL(sDoc, Array(Pv("FilterName", "MS Word 97"), Pv("Overwrite", True)))
  oDoc.storeToURL(sPdf, Array(Pv("FilterName", "writer_pdf_Export"), Pv("Overwrite", True)))
  oDoc.close(True)
  WriteAnswer(sJob, "OK")
  StarDesktop.terminate()
  Exit Sub
Failed:
  WriteAnswer(sJob, "ERROR" & Chr(9) & Erl & Chr(9) & Error$)
  StarDesktop.terminate()
End Sub
)BASIC";

}  // namespace kontorwerk
