REM They have their meaning elsewhere.
MSG=%MAINWINDOW% %1 %2 %MerlaVersion%
REM erwartet: MSG: %MAINWINDOW% %1 %2 %MerlaVersion%
