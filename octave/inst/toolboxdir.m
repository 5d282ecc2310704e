## -*- texinfo -*-
## @deftypefn {} {@var{dir} =} toolboxdir (@var{name})
## The folder of toolbox @var{name} under the deckforge package's root.
## The native library asks for it by name to find its resources.
## @end deftypefn
function dir = toolboxdir (name)
  root = fileparts (mfilename ('fullpath'));
  dir = fullfile (root, 'toolbox', name);
endfunction

%!test
%! root = fileparts (which ("toolboxdir"));
%! assert (toolboxdir ("shared"), fullfile (root, "toolbox", "shared"));
%! template = fullfile (toolboxdir ("shared"), "deckforge", "ppt", "resources", "templates", "pptx", "default.pptx");
%! assert (exist (template, "file"), 2);
