REM A control path is one field.
MSG=20;ThunderRT6ComboBox;19;ThunderRT6Frame
REM erwartet: MSG: 20;ThunderRT6ComboBox;19;ThunderRT6Frame
