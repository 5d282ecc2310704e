## -*- texinfo -*-
## @deftypefn {} {@var{info} =} picmeta (@var{file})
## Width and Height in pixels of the image @var{file}, as a structure.
## The native library asks for it by name when it can't read a size itself.
## @end deftypefn
function info = picmeta (file)
  i = imfinfo (file);
  info = struct ('Width', double (i(1).Width), 'Height', double (i(1).Height));
endfunction
