REM einstellung: [MERLA]
REM einstellung: MatrixWährung=20;ThunderRT6ComboBox;19;ThunderRT6Frame
READINI=MERLA,MATRIXWÄHRUNG
REM erwartet: ReadINI=20;ThunderRT6ComboBox;19;ThunderRT6Frame
