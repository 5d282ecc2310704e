## -*- texinfo -*-
## @deftypefn {} {@var{info} =} picmeta (@var{file})
## Width and Height in pixels of the image @var{file}, as a structure.
## Any file that imfinfo reads: PNG, JPEG, GIF, BMP, TIFF (its first page)
## and SVG among others. The native library asks for it by name for every
## picture but EMF and SVG files; a file it can't read raises imfinfo's error.
## @end deftypefn
function info = picmeta (file)
  i = imfinfo (file);
  info = struct ('Width', double (i(1).Width), 'Height', double (i(1).Height));
endfunction
