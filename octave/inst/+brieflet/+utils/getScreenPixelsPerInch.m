## -*- texinfo -*-
## @deftypefn {} {@var{ppi} =} brieflet.utils.getScreenPixelsPerInch ()
## The screen's resolution; 96 when there is no screen.
## @end deftypefn
function ppi = getScreenPixelsPerInch ()
  ppi = 96;
  try
    v = get (0, 'screenpixelsperinch');
    if (isnumeric (v) && isscalar (v) && v > 0)
      ppi = double (v);
    endif
  catch
  end_try_catch
endfunction

%!test
%! ppi = brieflet.utils.getScreenPixelsPerInch ();
%! assert (isscalar (ppi) && isa (ppi, "double") && ppi > 0);
