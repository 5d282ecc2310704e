function [deck, titles, notes] = edited_deck (folder, template)
  % Builds a deck that removes, moves and duplicates slides, sets notes and
  % core properties, on `template` (the default one if empty). Returns the
  % deck's path, the titles of its slides in order and their notes.
  deck = fullfile (folder, 'edited.pptx');
  if isempty (template)
    p = deckforge.ppt.Presentation (deck);
  else
    p = deckforge.ppt.Presentation (deck, template);
  end
  open (p);
  kept = p.Children;
  if isempty (kept)
    % A template without slides: a slide of our own stands in for its first.
    kept = {p.add('Title Slide')};
    set_title (kept{1}, 'Opening');
    kept{1}.Notes = 'Opening words';
  end
  % The template's slides all go but the first, whose notes are kept.
  for k = 2:numel (kept)
    p.remove (kept{k});
  end
  a = p.add ('Title and Content');
  set_title (a, 'Alpha');
  a.replace (a.Children{2}.Name, {'first', {'nested'}});
  a.Notes = {'Say alpha', {'slowly'}};
  b = p.add ('Title and Content');
  set_title (b, 'Beta');
  b.Notes = sprintf ('Beta notes\nsecond line');
  c = p.duplicate (a);
  set_title (c, 'Alpha copy');
  p.move (b, 1);
  d = p.duplicate (kept{1}, numel (p.Children) + 1);
  d.Notes = '';
  p.Properties = struct ('Title', 'Edited deck', 'Author', 'A. Engineer', 'Keywords', 'slides; notes');
  p.close ();
  % The template's own title isn't known here.
  titles = {'Beta', '', 'Alpha', 'Alpha copy', ''};
  notes = {sprintf('Beta notes\nsecond line'), kept{1}.Notes, sprintf('Say alpha\nslowly'), ...
           sprintf('Say alpha\nslowly'), ''};
end

function set_title (slide, text)
  % Templates name their title placeholders "Title", "Title 1"...
  for k = 1:numel (slide.Children)
    if strncmp (slide.Children{k}.Name, 'Title', 5)
      slide.replace (slide.Children{k}.Name, text);
      return;
    end
  end
end
