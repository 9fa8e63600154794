# SYNTAX TEST "source.tarven-mak"
REM Ein Kommentar
# <--- comment.line.tarven-mak
DIM Jahr
# <--- storage.type.tarven-mak
#   ^^^^ variable.other.tarven-mak
Jahr=READINI(Export,Jahr)
# <---- variable.other.tarven-mak
#   ^ keyword.operator.tarven-mak
#    ^^^^^^^ support.function.tarven-mak
  buttonclick=2111,Export,1
# ^^^^^^^^^^^ support.function.tarven-mak
#             ^^^^ constant.numeric.tarven-mak
#                 ^ punctuation.separator.tarven-mak
#                         ^ constant.numeric.tarven-mak
IF STRCOMP='$WJ, $WK',Jahr
# <---------- keyword.control.tarven-mak
#          ^^^^^^^^^^ string.quoted.single.tarven-mak
#           ^^^ variable.language.tarven-mak
#                ^^^ invalid.illegal.tarven-mak
ENDIF
# <----- keyword.control.tarven-mak
MARK=Ende
# <---- keyword.control.tarven-mak
#    ^^^^ entity.name.label.tarven-mak
MENUCLICK=3101,%MAINWINDOW%
#              ^^^^^^^^^^^^ constant.other.placeholder.tarven-mak
BUTTON=1
# <------ !support.function.tarven-mak
