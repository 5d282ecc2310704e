## -*- texinfo -*-
## @deftypefn {} {@var{info} =} picmeta (@var{file})
## Width and Height in pixels of the image @var{file}, as a structure.
## PNG, JPEG, GIF and BMP files are measured by their headers, found by
## content whatever the extension; any other file that imfinfo reads, TIFF
## (its first page) and SVG among them, by imfinfo. The native library asks
## for it by name for every picture but EMF and SVG files; a file that
## neither reads raises "deckforge:picmeta:unreadableImage" with imfinfo's
## message.
## @end deftypefn
function info = picmeta (file)
  ## imfinfo goes through GraphicsMagick, whose OpenMP workers spin for a
  ## while after each call: in a script that places many pictures they took
  ## a third of the CPU time. A header gives the same two numbers.
  size = __deckforge_gw__ ('imagesize', file);
  if (isempty (size))
    try
      i = imfinfo (file);
    catch err
      ## imfinfo's own errors carry no identifier, which scripts need to
      ## tell this failure from others.
      error ("deckforge:picmeta:unreadableImage", "picmeta: cannot read the image \"%s\": %s", ...
             file, err.message);
    end_try_catch
    size = [double(i(1).Width), double(i(1).Height)];
  endif
  info = struct ('Width', size(1), 'Height', size(2));
endfunction

%!test
%! f = [tempname() ".png"];
%! unwind_protect
%!   imwrite (zeros (7, 12, "uint8"), f);
%!   info = picmeta (f);
%!   assert (info, struct ("Width", 12, "Height", 7));
%! unwind_protect_cleanup
%!   unlink (f);
%! end_unwind_protect
%!error <deckforge:picmeta:unreadableImage|cannot read the image> picmeta (mfilename ("fullpath"))
