REM Every "(" becomes "=" and every ")" vanishes, so an inner parenthesis cuts the argument.
DIM x
x=VALUE(a(b)c)
REM erwartet: Variable wurde befüllt: a
x=VALUE(a)b)
REM erwartet: Variable wurde befüllt: ab
x=VALUE((a))
REM erwartet: Variable wurde befüllt: 
x=VALUE()
REM erwartet: Variable wurde befüllt: 
x=VALUE
REM erwartet: Variable wurde befüllt: 
