function out = preview (template, output)
  %PREVIEW  A deck that shows what to call the placeholders of a template.
  %   OUT = deckforge.ppt.preview (TEMPLATE, OUTPUT) writes OUTPUT with one
  %   slide of every layout of every master, in the template's order, each
  %   placeholder showing its name and role, as "Shape 13 - Content", and
  %   returns the output path. Either name works in find, replace and add:
  %
  %     deckforge.ppt.preview ('company.potx', 'company-preview.pptx');
  %     p = deckforge.ppt.Presentation ('report.pptx', 'company.potx');
  %     s = p.add ('Title and Content');
  %     s.replace ('Title', 'Results');    % or the name the preview shows
  %     s.replace ('Content 2', 'Next');   % the second Content placeholder
  %
  %   Placeholders that take no text (pictures, tables, charts, date, footer
  %   and slide number) get a text box of their size instead. The output
  %   path gets the template's extension if it has none, as a Presentation's.
  %
  %   See also deckforge.ppt.Presentation (describe).
  if nargin != 2
    print_usage ();
  end
  p = deckforge.ppt.Presentation (output, template);
  layouts = p.describe ();
  % Only the layouts: the template's own slides leave the preview.
  old = p.Children;
  for k = 1:numel (old)
    p.remove (old{k});
  end
  for k = 1:numel (layouts)
    try
      s = p.add (layouts(k).Layout, layouts(k).Master);
    catch
      % Two masters of one name (their themes') can't be told apart by it.
      s = p.add (layouts(k).Layout);
    end
    ph = layouts(k).Placeholders;
    names = arrayfun (@(x) x.Name, ph, 'UniformOutput', false);
    roles = arrayfun (@(x) x.Role, ph, 'UniformOutput', false);
    for i = 1:numel (ph)
      label = sprintf ('%s - %s', ph(i).Name, ph(i).Role);
      % By its own name where that is unique, else by role and ordinal.
      if ! isempty (ph(i).Name) && sum (strcmp (names, ph(i).Name)) == 1
        hits = s.find (ph(i).Name);
      else
        hits = s.find (sprintf ('%s %d', ph(i).Role, sum (strcmp (roles(1:i), ph(i).Role))));
      end
      if ! isempty (hits) && (isa (hits{1}, 'deckforge.ppt.BaseTextBox') ...
                              || isa (hits{1}, 'deckforge.ppt.ContentPlaceholder'))
        hits{1}.replace (label);
      elseif ! isempty (ph(i).Width) && ! isempty (ph(i).Height)
        box = deckforge.ppt.TextBox ();
        box.FontSize = '9pt';     % date and slide number boxes are small
        box.X = ph(i).X;  box.Y = ph(i).Y;  box.Width = ph(i).Width;  box.Height = ph(i).Height;
        box.add (label);
        s.add (box);
      end
    end
  end
  p.close ();
  out = p.OutputPath;
end

%!test
%! out = fullfile (tempdir (), sprintf ('preview-%d.pptx', getpid ()));
%! template = deckforge.ppt.Presentation (out).TemplatePath;
%! unwind_protect
%!   assert (strcmp (deckforge.ppt.preview (template, out), out));
%!   p = deckforge.ppt.Presentation (tempname (), out);
%!   d = p.describe ();
%!   assert (numel (p.Children) == numel (d));
%!   [status, xml] = system (sprintf ('unzip -p "%s" "ppt/slides/*.xml"', out));
%!   assert (status == 0 && ! isempty (strfind (xml, '>Title - Title<')));
%! unwind_protect_cleanup
%!   delete (out);
%! end_unwind_protect
