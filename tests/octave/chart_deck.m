function [out, n, have_df] = chart_deck (outDir)
  % A deck of native charts: every type, a combo on a secondary axis in a
  % content placeholder, charts from a struct array and (with the dataframe
  % package) a dataframe. Gives the file, its slide count and whether the
  % dataframe chart is in it.
  out = fullfile (outDir, 'charts.pptx');
  p = deckforge.ppt.Presentation (out);
  types = {'column', 'stackedColumn', 'percentColumn', 'bar', 'stackedBar', 'line', ...
           'lineMarkers', 'area', 'stackedArea', 'pie', 'doughnut', 'scatter'};
  values = [3 5 2; 4 NaN 3; 6 7 1; 2 4 5];
  for k = 1:numel (types)
    s = p.add ('Title Only');
    s.replace ('Title', types{k});
    if any (strcmp (types{k}, {'pie', 'doughnut'}))
      c = deckforge.ppt.Chart (types{k}, values(:, 1), {'a & b', 'c', 'd', 'e'});
      c.Colors = {'red', '#00AA00', 'blue', 'orange'};
    elseif strcmp (types{k}, 'scatter')
      c = deckforge.ppt.Chart ('scatter', [1 2; 2 4; 3 NaN; 4 8]);
    else
      c = deckforge.ppt.Chart (types{k}, values, {'Q1', 'Q2', 'Q3', 'Q4'});
      c.SeriesNames = {'North', 'South', 'West'};
    end
    c.Title = ['A ' types{k} ' chart'];
    c.XTitle = 'Across';
    c.YTitle = 'Up';
    c.X = '1in';  c.Y = '1.6in';  c.Width = '8in';  c.Height = '5in';
    placed = s.add (c);
    assert (isa (placed, 'deckforge.ppt.Chart') && strcmp (placed.Type, types{k}));
  end

  % A combo: revenue as columns, the margin as a line on a percent axis.
  s = p.add ('Title and Content');
  s.replace ('Title', 'Combo in a placeholder');
  c = deckforge.ppt.Chart ('column', [120 0.12; 150 0.18; 90 0.07], {'2023', '2024', '2025'});
  c.SeriesNames = {'Revenue', 'Margin'};
  c.SecondaryAxis = [false true];
  c.NumberFormat = '0.0';
  c.Legend = 'bottom';
  s.replace ('Content', c);
  assert (isa (s.find ('Content'){1}, 'deckforge.ppt.Chart'));

  sales = struct ('Region', {'North', 'South', 'East'}, 'Q1', {10, 12, 9}, 'Q2', {11, 8, 14});
  cs = deckforge.ppt.Chart ('line', sales);
  assert (isequal (cs.SeriesNames, {'Q1', 'Q2'}) && isequal (cs.Categories, {'North', 'South', 'East'}));
  s = p.add ('Title and Content');
  s.replace ('Title', 'From a struct array');
  s.find ('Content'){1}.replace (cs);
  have_df = ! isempty (pkg ('list', 'dataframe'));
  if have_df
    pkg load dataframe
    df = dataframe ({'x', 1, 2; 'y', 3, 4}, 'colnames', {'Name', 'A', 'B'});
    cd = deckforge.ppt.Chart ('bar', df);
    assert (isequal (cd.SeriesNames, {'A', 'B'}) && isequal (cd.Categories, {'x', 'y'}));
    cd.Legend = 'none';
    s = p.add ('Title Only');
    s.replace ('Title', 'From a dataframe');
    s.add (cd);
  end
  p.close ();
  n = numel (types) + 2 + have_df;
end
