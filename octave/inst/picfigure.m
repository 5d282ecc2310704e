## -*- texinfo -*-
## @deftypefn {} {@var{size} =} picfigure (@var{h}, @var{file})
## Prints the figure of the handle @var{h} (a figure, or an axes of it) to
## the SVG file @var{file}, without a display and hidden figures included,
## and gives its paper size in inches as a structure with the fields Width
## and Height. Anything but a live figure or axes handle gives [] and prints
## nothing. The native library calls it by name for a Picture of a figure.
## @end deftypefn
function size = picfigure (h, file)
  size = [];
  if (! (isscalar (h) && isnumeric (h) && ishghandle (h)))
    return;
  endif
  switch (get (h, "type"))
    case "figure"
      fig = h;
    case "axes"
      fig = ancestor (h, "figure");
    otherwise
      return;
  endswitch

  ## Without a display gnuplot is the only toolkit, and SVG needs no
  ## Ghostscript: both warnings say nothing to the caller.
  state = warning ();
  restore = onCleanup (@() warning (state));
  warning ("off", "Octave:gnuplot-graphics");
  warning ("off", "print:nogs");
  print (fig, "-dsvg", file);
  ## Read after printing: a figure never drawn has no settled paper
  ## position before.
  units = get (fig, "paperunits");
  set (fig, "paperunits", "inches");
  position = get (fig, "paperposition");
  set (fig, "paperunits", units);

  ## gnuplot writes Octave's default font as an empty family and a bold one
  ## as ":Bold"; readers then fall back to a serif font. The text stays text.
  svg = fileread (file);
  svg = regexprep (svg, 'font-family="([^":]*):Bold"', 'font-family="$1" font-weight="bold"');
  svg = strrep (svg, 'font-family=""', 'font-family="Arial"');
  fid = fopen (file, "w");
  fputs (fid, svg);
  fclose (fid);

  size = struct ("Width", position(3), "Height", position(4));
endfunction
