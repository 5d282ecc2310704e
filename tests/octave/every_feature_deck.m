function [deck, texts, nSlides] = every_feature_deck (outDir)
  % One deck with everything a script can put in it: a slide of every
  % layout of the default template with every placeholder filled, every
  % character format, pictures of every kind, and tables of every kind.
  % Returns the deck's path, the texts that readers must show on each slide
  % (a cell of cells, by slide number), and the number of slides.
  deck = fullfile (outDir, 'every.pptx');
  texts = {};
  p = deckforge.ppt.Presentation (deck);
  p.open ();

  pngFile = fullfile (outDir, 'image.png');
  imwrite (uint8 (kron (magic (4) * 16, ones (30, 40))), pngFile);
  masters = p.getMasterNames ();
  for layout = p.getLayoutNames (masters{1})
    name = layout{1};
    s = p.add (name);
    shown = {};
    for child = s.Children
      ph = child{1};
      text = sprintf ('%s / %s', name, ph.Name);
      if isa (ph, 'deckforge.ppt.TablePlaceholder')
        ph.replace (deckforge.ppt.Table ({text, 'b'; 'c', 'd'}));
      elseif isa (ph, 'deckforge.ppt.PicturePlaceholder') && ~isa (ph, 'deckforge.ppt.ContentPlaceholder')
        ph.replace (deckforge.ppt.Picture (pngFile));
        continue;
      elseif isa (ph, 'deckforge.ppt.BaseTextBox')
        ph.replace (text);
      else
        continue;
      end
      shown{end+1} = text;
    end
    texts{end+1} = shown;
  end

  % Every character format, one run each, and the box formats.
  s = p.add ('Title Only');
  s.replace ('Title', 'Formats');
  box = deckforge.ppt.TextBox ();
  box.Name = 'Formats box';
  box.X = '1in'; box.Y = '1.5in'; box.Width = '10in'; box.Height = '4in';
  box.BackgroundColor = 'LightYellow';
  box.VAlign = 'middleCentered';
  para = deckforge.ppt.Paragraph ();
  para.HAlign = 'center';
  settings = {'Bold', true; 'Italic', true; 'Underline', 'double'; 'Strike', 'single'; ...
              'Subscript', true; 'Superscript', true; 'Font', 'DejaVu Serif'; ...
              'FontSize', '28pt'; 'FontColor', '#C00000'};
  for k = 1:rows (settings)
    run = deckforge.ppt.Text (sprintf ('%s run ', settings{k, 1}));
    run.(settings{k, 1}) = settings{k, 2};
    para.append (run);
  end
  para.append (deckforge.ppt.ExternalLink ('https://example.com/every', 'link run'));
  box.add (para);
  s.add (box);
  texts{end+1} = {'Formats', 'Bold run', 'link run'};

  % Pictures of every kind Octave can write, and an SVG.
  s = p.add ('Blank');
  texts{end+1} = {};
  kinds = {'png', 'jpg', 'gif', 'bmp', 'tif'};
  for k = 1:numel (kinds)
    file = fullfile (outDir, ['picture.' kinds{k}]);
    imwrite (uint8 (kron (magic (4) * 16, ones (20, 20))), file);
    pic = deckforge.ppt.Picture (file);
    pic.X = sprintf ('%din', 2 * k - 1); pic.Y = '1in'; pic.Width = '1.5in'; pic.Height = '1.5in';
    s.add (pic);
  end
  svg = fullfile (outDir, 'picture.svg');
  fid = fopen (svg, 'w');
  fputs (fid, '<svg xmlns="http://www.w3.org/2000/svg" width="80" height="80"><circle cx="40" cy="40" r="30" fill="teal"/></svg>');
  fclose (fid);
  pic = deckforge.ppt.Picture (svg);
  pic.X = '1in'; pic.Y = '4in'; pic.Width = '1.5in'; pic.Height = '1.5in';
  s.add (pic);

  % Tables of every kind: a cell array with paragraph headers, numbers,
  % logicals, a struct array, a styled one with column widths, an empty one.
  s = p.add ('Title Only');
  s.replace ('Title', 'Tables');
  head = deckforge.ppt.Paragraph ('Head A');
  head.Bold = true;
  % (No blank before a call's parenthesis inside braces: it would split
  % the element in two.)
  tables = {deckforge.ppt.Table({head, 'Head B'; 'cell text', 2.5}), ...
            deckforge.ppt.Table([1 2 3; 4 5 6]), ...
            deckforge.ppt.Table([true false]), ...
            deckforge.ppt.Table(struct('Field', {'struct row'}, 'Value', {7}))};
  styled = deckforge.ppt.Table ({'styled', 'table'});
  styled.StyleName = 'Dark Header';
  styled.ColSpecs = {deckforge.ppt.ColSpec('2in'), deckforge.ppt.ColSpec('1in')};
  tables{end+1} = styled;
  for k = 1:numel (tables)
    t = tables{k};
    t.X = '0.5in'; t.Y = sprintf ('%.1fin', 1.3 + 1.2 * (k - 1)); t.Width = '6in'; t.Height = '1in';
    s.add (t);
  end
  texts{end+1} = {'Tables', 'Head A', 'cell text', '2.5', 'struct row', 'styled'};
  if exist ('dataframe', 'file')
    s = p.add ('Title and Content');
    s.replace ('Title', 'Dataframe');
    s.replace ('Content', dataframe ({'Name', 'Count'; 'frame row', 3}));
    texts{end+1} = {'Dataframe', 'frame row'};
  end

  nSlides = numel (p.Children);
  p.close ();
end
